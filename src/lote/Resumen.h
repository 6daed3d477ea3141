#pragma once

#include <string>

#include "base/Formatos.h"
#include "lote/Modulo.h"

namespace trabex::lote {

/// The summary of a list as a table of plain text: a heading, and an element a line, closed by the error that
/// ended its calculation. No value widens the table past a line: a longer name is cut and ends in "…", a
/// number too wide for its column is written with an exponent.
std::string TablaResumen(const Lista& lista, const Separadores& separadores);

}  // namespace trabex::lote
