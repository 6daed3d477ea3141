#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/Columna.h"
#include "store/Conexion.h"
#include "store/Recordset.h"

namespace trabex::almacen {

/// The columns of a table; none where there is no such table.
std::vector<Columna> ColumnasDe(Conexion& conexion, const std::string& tabla);

/// The column in which AbrirConIdentidad tells what LeerBytes takes.
inline constexpr const char* ColumnaIdentidad = "IdentidadDeFila";

/// Opens the rows of a table with some of its columns, in the order of `orden` (empty: none) and then as they
/// were written. Names are those of ColumnasDe.
void AbrirConIdentidad(Conexion& conexion, Recordset& registros, const std::string& tabla,
                       const std::vector<std::string>& columnas, const std::string& orden);

/// The bytes in a column of the row of an identity; empty where there are none.
Bytes LeerBytes(Conexion& conexion, const std::string& tabla, std::string_view columna,
                const std::string& identidad);

}  // namespace trabex::almacen
