#pragma once

#include <QDialog>

#include "reports/ui/SeleccionarImpresora.h"

class QListWidget;

namespace trabex::reportes::ui::qt {

/// Chooses the printer of the program, until it ends.
class VentanaSeleccionarImpresora : public QDialog {
  public:
    VentanaSeleccionarImpresora(EntornoSalida& entorno, QWidget* padre);

  private:
    void Armar();
    void Aceptar();

    SeleccionarImpresora operaciones_;
    QListWidget* lista_ = nullptr;
};

/// The command of the workspaces.
void SeleccionarImpresoraTBX(EntornoSalida& entorno, QWidget* padre);

}  // namespace trabex::reportes::ui::qt
