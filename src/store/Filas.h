#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "store/Conexion.h"
#include "store/Recordset.h"
#include "store/Valor.h"

namespace trabex::almacen {

/// "SELECT * FROM tabla WHERE Nombre=…", with an order where one is given.
std::string ConsultaDe(std::string_view tabla, const std::string& nombre, std::string_view orden = {});

/// Writes an element's rows of one table over its stored ones: `poner` fills row k of 1 … filas. False when a
/// row could not be written.
bool EscribirFilas(Conexion& conexion, const char* tabla, const std::string& nombre, std::size_t filas,
                   const std::function<void(Recordset&, std::size_t)>& poner);

/// Writes the one row of a table of general data over whatever stands there, as one save. False when it could
/// not be stored; what was stored then stands.
bool ReemplazarFila(Conexion& conexion, const char* tabla, const std::function<void(Recordset&)>& poner);

/// Puts the set of such a table on its row, which `poner` first fills where there is none. False when the
/// table can't be reached or written.
bool SembrarFila(Recordset& registros, const std::function<void(Recordset&)>& poner);

/// A row's number; one past the column's 16 bits is refused there.
Valor NumeroDeFila(std::size_t k);

}  // namespace trabex::almacen
