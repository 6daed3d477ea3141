#pragma once

#include <map>
#include <string>
#include <vector>

#include "jet/Receptor.h"
#include "store/Motor.h"

namespace trabex::almacen::antiguo {

/// The tables of users of a database, in their order.
std::vector<std::string> TablasDe(Motor& base);

/// A table's columns as a Jet database has them: as they were where the database was copied of one, otherwise
/// by what the store declares.
std::vector<jet::Columna> ColumnasDe(Motor& base, const std::string& tabla);

/// The same with what else the table had where the database was copied of one.
jet::Tabla TablaDe(Motor& base, const std::string& tabla);

/// How often each thing was missing that a copy of a Jet database lacks.
std::map<jet::Falta, std::size_t> FaltasDe(Motor& base);

/// A sum of money, which Jet keeps in ten-thousandths, as a double and back.
double UnidadesDe(std::int64_t diezMilesimas);
std::int64_t DiezMilesimasDe(double unidades);

}  // namespace trabex::almacen::antiguo
