#pragma once

#include <QDialog>
#include <functional>
#include <string>

#include "slab/ui/Losas.h"

class QLabel;
class QLineEdit;
class QScrollBar;

namespace trabex::losas::ui::qt {

/// Asks for the name of a slab that does not exist yet: `LosaNueva` and `LosaSalvarComo`. Its scroller walks
/// the slabs of the project, so that the names taken can be seen.
class VentanaNombreLosa : public QDialog {
  public:
    /// `aceptar` answers whether the name was taken and the window closes.
    VentanaNombreLosa(const QString& titulo, Losas& losas, std::function<bool(const std::string&)> aceptar,
                      QWidget* padre);

  protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

  private:
    QLayout* FilaDeExistentes();
    void MostrarExistente();

    Losas& losas_;
    QLineEdit* nombre_;
    QLabel* existente_;
    QScrollBar* deslizador_;
};

}  // namespace trabex::losas::ui::qt
