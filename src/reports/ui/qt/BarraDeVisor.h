#pragma once

#include <QKeySequence>
#include <QString>

class QAction;
class QToolBar;
class QWidget;

namespace trabex::salidas::qt {
class VistaPaginas;
}

namespace trabex::reportes::ui::qt {

/// A command of a viewer's tool bar, whose tool tip tells its keys.
QAction* AccionDeBarra(QToolBar& barra, const char* icono, const QString& titulo, const QKeySequence& tecla);

/// The commands that turn the pages of a view: first, before, `centro` (which tells the page), after, last.
void PonerAccionesDePaginas(QToolBar& barra, salidas::qt::VistaPaginas& vista, QWidget* centro);

}  // namespace trabex::reportes::ui::qt
