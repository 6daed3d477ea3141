#pragma once

#include "shell/Aplicacion.h"
#include "shell/CajaMensajes.h"

namespace trabex::programa {

/// Operations of the window that edits the project's title data.
class DatosProyecto {
  public:
    DatosProyecto(Aplicacion& aplicacion, CajaMensajes& caja) : aplicacion_(aplicacion), caja_(caja) {}

    /// Connects to the current project and reads its data, which get their seeds where there are none.
    const DatosDelProyecto& Leer();
    /// " Salvar ": replaces the one row of the table and refreshes the working values. False, with a message,
    /// when the project could not be written; the window then stays open.
    bool Salvar(const DatosDelProyecto& datos);

  private:
    Aplicacion& aplicacion_;
    almacen::Conexion conexion_;  // stands as long as the window
    CajaMensajes& caja_;
};

}  // namespace trabex::programa
