#pragma once

#include <filesystem>

#include "base/Avance.h"
#include "reports/documento/Documento.h"
#include "reports/xls/LibroXls.h"

namespace trabex::salidas {

/// A document as a workbook: a sheet a section, numbers and dates as such with their formats, units as part
/// of them, pictures in their places, the page's size, margins, header and footer.
xls::LibroXls LibroDe(const documento::Documento& documento, const Avance& avance = {});

/// Writes a document as a workbook. Throws ErrorEjecucion; the file that stood there then stays.
void EscribirXls(const documento::Documento& documento, const std::filesystem::path& destino,
                 const Avance& avance = {});

}  // namespace trabex::salidas
