#pragma once

#include <string_view>

#include "store/Conexion.h"

namespace trabex::almacen {

/// Deletes all rows of a table. False when it could not be done; the table then stands as it stood.
bool VaciarTabla(Conexion& conexion, std::string_view tabla);

}  // namespace trabex::almacen
