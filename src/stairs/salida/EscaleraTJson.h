#pragma once

#include <string>

#include "base/DatosGenerales.h"
#include "stairs/DatosEscaleraT.h"
#include "stairs/ResultadosEscaleraT.h"

namespace trabex::escaleras::salida {

/// Records as JSON objects whose keys are the records' field names. `TramoT` begins at slot 0, the other
/// arrays at 1; `error` stands in a stair only when its calculation ended in one.
std::string GeneralesJson(const DatosGenerales& generales);
std::string EscaleraTJson(const DatosEscaleraT& escalera, const ResultadosEscaleraT& resultados);

}  // namespace trabex::escaleras::salida
