#pragma once

#include "store/Conexion.h"
#include "store/Recordset.h"

namespace trabex::almacen::proyecto {

/// A project while a workspace is up: the connection and the list of the workspace's elements, whose position
/// is the selected element. They open together and close together.
struct ProyectoAbierto {
    Conexion ConexionProyecto;
    Recordset RegistrosProyecto;
};

}  // namespace trabex::almacen::proyecto
