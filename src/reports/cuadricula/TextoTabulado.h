#pragma once

#include <filesystem>

#include "reports/cuadricula/Cuadricula.h"

namespace trabex::cuadricula {

/// Writes a grid as text in UTF-8, a line a row, cells parted by tabulators, row headings first, under a line
/// of column headings. A cell that holds a tabulator, a line feed or a quote stands in quotes and doubles
/// its own, as spreadsheets read it. Sheets are parted by an empty line. Throws ErrorEjecucion; an older
/// file then stays.
void EscribirTabulado(const Cuadricula& cuadricula, const std::filesystem::path& destino);

}  // namespace trabex::cuadricula
