#pragma once

#include <string_view>

#include "base/Proyecto.h"
#include "store/Conexion.h"

namespace trabex::almacen::proyecto {

/// Reads table `Proyecto`; when it is empty it first gets its seed row: `usuario` as engineer, today as date.
/// When the table can't be reached `datos` become the seed.
void LeerProyecto(Conexion& conexion, std::string_view usuario, DatosDelProyecto& datos);

/// Writes the one row of table `Proyecto` over the stored one, as one save. False when it could not be
/// stored; the stored row then stands.
bool GuardarProyecto(Conexion& conexion, const DatosDelProyecto& datos);

}  // namespace trabex::almacen::proyecto
