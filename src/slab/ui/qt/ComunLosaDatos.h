#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>

class QToolButton;
class QWidget;

// What the pages of the window that edits a slab have in common.

namespace trabex::losas::ui::qt {

/// Of a table's row, from 1, in the slab's lists.
std::size_t Indice(int fila);

/// A whole number, however large, for an operation that tells its own limit.
std::int64_t Entero64(double valor);

/// A flat button with its text beside the picture.
QToolButton* BotonDeBarra(const QString& icono, const QString& texto, const QString& ayuda, QWidget* padre);

}  // namespace trabex::losas::ui::qt
