#pragma once

#include <filesystem>

#include "base/Avance.h"
#include "reports/documento/Documento.h"

namespace trabex::salidas {

/// Writes a document as one HTML 4.01 page, its pictures inside it, so that the file can be mailed alone.
/// Throws ErrorEjecucion; the file that stood there then stays.
void EscribirHtml(const documento::Documento& documento, const std::filesystem::path& destino,
                  const Avance& avance = {});

}  // namespace trabex::salidas
