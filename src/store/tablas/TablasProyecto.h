#pragma once

#include <string_view>

#include "base/DatosGenerales.h"
#include "base/Proyecto.h"
#include "store/Conexion.h"
#include "store/Recordset.h"

namespace trabex::almacen::tablas {

/// A project while a workspace is up: the connection and the list of the workspace's elements, whose position
/// is the selected element. They open together and close together.
struct ProyectoAbierto {
    Conexion ConexionProyecto;
    Recordset RegistrosProyecto;
};

/// Adds the row of table `Proyecto`, and of `LosaG`, to its opened set. False when it could not be stored.
bool AgregarProyecto(Recordset& registros, const DatosDelProyecto& datos);
bool AgregarGenerales(Recordset& registros, const DatosGenerales& generales);

/// Reads table `Proyecto`; when it is empty it first gets its seed row: `usuario` as engineer, today as date.
void LeerProyecto(Conexion& conexion, std::string_view usuario, DatosDelProyecto& datos);

/// Reads `Proyecto` and `LosaG`, seeding each when empty. When the tables can't be reached the values become
/// the seeds.
void LeerDatosGenerales(Conexion& conexion, std::string_view usuario, DatosDelProyecto& datos,
                        DatosGenerales& generales);

}  // namespace trabex::almacen::tablas
