#pragma once

#include <map>
#include <string>
#include <vector>

#include "jet/Tabla.h"
#include "store/Motor.h"

namespace trabex::almacen::antiguo {

/// The tables of users of a database, in their order.
std::vector<std::string> TablasDe(Motor& base);

/// A table's columns as a Jet database has them: as they were where the database was copied of one, otherwise
/// by what the store declares.
std::vector<jet::Columna> ColumnasDe(Motor& base, const std::string& tabla);

}  // namespace trabex::almacen::antiguo
