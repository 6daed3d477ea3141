#pragma once

#include <string>

#include "shell/CajaMensajes.h"
#include "store/proyecto/ProyectoAbierto.h"

namespace trabex::escaleras::ui {

/// Operations of the window that edits the title of the selected stair of either kind.
class EscaleraTitulo {
  public:
    EscaleraTitulo(almacen::proyecto::ProyectoAbierto& proyecto, programa::CajaMensajes& caja)
        : proyecto_(proyecto), caja_(caja) {}

    std::string Nombre() const { return proyecto_.RegistrosProyecto.Texto("Nombre"); }
    std::string Titulo() const { return proyecto_.RegistrosProyecto.Texto("Titulo"); }

    /// " Aceptar ": true when the window closes. A save that did not go through keeps it open.
    bool Aceptar(const std::string& titulo);

  private:
    almacen::proyecto::ProyectoAbierto& proyecto_;
    programa::CajaMensajes& caja_;
};

}  // namespace trabex::escaleras::ui
