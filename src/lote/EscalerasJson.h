#pragma once

#include <optional>
#include <string>

#include "base/DatosGenerales.h"
#include "base/ErrorEjecucion.h"
#include "helical/DatosEscaleraH.h"
#include "helical/ResultadosEscaleraH.h"
#include "markus/CalculeMarcus.h"
#include "stairs/DatosEscaleraT.h"
#include "stairs/ResultadosEscaleraT.h"

namespace trabex::lote {

/// Records as JSON objects in the manner of ResultadosJson.h. `TramoT` begins at slot 0, the other arrays
/// at 1.
std::string GeneralesEscaleraJson(const DatosGenerales& generales);
std::string EscaleraTJson(const escaleras::DatosEscaleraT& escalera,
                          const escaleras::ResultadosEscaleraT& resultados);
std::string EscaleraHJson(const helices::DatosEscaleraH& escalera,
                          const helices::ResultadosEscaleraH& resultados);
std::string MarcusJson(const marcus::NivelMarcus& nivel, const std::optional<ErrorEjecucion>& error);

}  // namespace trabex::lote
