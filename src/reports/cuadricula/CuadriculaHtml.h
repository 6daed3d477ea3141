#pragma once

#include <filesystem>

#include "reports/cuadricula/Cuadricula.h"

namespace trabex::cuadricula {

/// Writes a grid as an HTML 4.01 page: a table a sheet with its headings of columns and rows, with or without
/// lines around its cells. Throws ErrorEjecucion; an older file then stays.
void EscribirHtml(const Cuadricula& cuadricula, bool conBorde, const std::filesystem::path& destino);

}  // namespace trabex::cuadricula
