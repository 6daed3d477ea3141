#pragma once

#include <filesystem>

#include "base/Avance.h"
#include "reports/documento/Documento.h"

namespace trabex::salidas::qt {

/// Writes a document as PDF: texts that can be searched, in embedded fonts, drawings as strokes and other
/// pictures without loss, a bookmark for each section, title and author told. Throws ErrorEjecucion; the file
/// that stood there then stays.
void EscribirPdf(const documento::Documento& documento, const std::filesystem::path& destino,
                 const Avance& avance = {});

}  // namespace trabex::salidas::qt
