#pragma once

#include <QDialog>

#include "reports/planex/ui/CuadroCAD.h"
#include "shell/Aplicacion.h"

namespace trabex::planex::ui::qt {

/// Asks for which edition of Planex a file is made. Its answer goes to `destino`.
class VentanaCuadroCAD : public QDialog {
  public:
    VentanaCuadroCAD(const programa::Aplicacion& aplicacion, DestinoCAD& destino, QWidget* padre);
};

}  // namespace trabex::planex::ui::qt
