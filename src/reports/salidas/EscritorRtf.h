#pragma once

#include <filesystem>

#include "base/Avance.h"
#include "reports/documento/Documento.h"

namespace trabex::salidas {

/// Writes a document as Rich Text, for word processors: headings as styles, tables whose header repeats over
/// pages, header and footer that count the pages. Throws ErrorEjecucion; the file that stood there then
/// stays.
void EscribirRtf(const documento::Documento& documento, const std::filesystem::path& destino,
                 const Avance& avance = {});

}  // namespace trabex::salidas
