#pragma once

#include <string>

#include "base/DatosGenerales.h"
#include "helical/DatosEscaleraH.h"
#include "helical/ResultadosEscaleraH.h"

namespace trabex::helices::salida {

/// Records as JSON objects whose keys are the records' field names. Arrays begin at slot 1; `error` stands in
/// a stair only when its calculation ended in one.
std::string GeneralesJson(const DatosGenerales& generales);
std::string EscaleraHJson(const DatosEscaleraH& escalera, const ResultadosEscaleraH& resultados);

}  // namespace trabex::helices::salida
