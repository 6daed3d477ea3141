#pragma once

#include <filesystem>

#include "reports/cuadricula/Cuadricula.h"
#include "reports/xls/LibroXls.h"

namespace trabex::cuadricula {

inline constexpr const char* NombreDeHojaXls = "Hoja1";

/// A grid as a workbook: its sheet "Hoja1" (further ones "Hoja2"…), row headings as the first column,
/// numbers as numbers with their format, thin lines around every cell.
xls::LibroXls LibroDe(const Cuadricula& cuadricula);

/// Writes it. Throws ErrorEjecucion; an older file then stays.
void EscribirXls(const Cuadricula& cuadricula, const std::filesystem::path& destino);

}  // namespace trabex::cuadricula
