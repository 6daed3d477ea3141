#pragma once

#include <QDialog>

#include "shell/Aplicacion.h"
#include "shell/Plataforma.h"

namespace trabex::programa::qt {

/// Shows the edition, and opens the desktop's system-information tool and the user's name.
class VentanaSobre : public QDialog {
  public:
    VentanaSobre(const Aplicacion& aplicacion, Plataforma& plataforma, QWidget* padre);
};

/// Shows the user's name; it writes nothing.
class VentanaUsuario : public QDialog {
  public:
    VentanaUsuario(const Aplicacion& aplicacion, QWidget* padre);
};

}  // namespace trabex::programa::qt
