#pragma once

#include <string>

#include "base/Aviso.h"
#include "base/DatosGenerales.h"
#include "helical/DatosEscaleraH.h"
#include "helical/ResultadosEscaleraH.h"

namespace trabex::helices::salida {

/// Records as JSON objects whose keys are the records' field names. Arrays begin at slot 1; `error` stands in
/// a stair only when its calculation ended in one. A station has its `Angulo` in plan, degrees from the
/// centre. `EmpujeEstatico` is the thrust by statics beside the prescribed horizontal reaction.
std::string GeneralesJson(const DatosGenerales& generales);
std::string EscaleraHJson(const DatosEscaleraH& escalera, const ResultadosEscaleraH& resultados,
                          const Avisos& avisos);

}  // namespace trabex::helices::salida
