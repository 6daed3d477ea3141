#pragma once

#include <string>

#include "base/Aviso.h"
#include "base/DatosGenerales.h"
#include "stairs/DatosEscaleraT.h"
#include "stairs/ResultadosEscaleraT.h"

namespace trabex::escaleras::salida {

/// Records as JSON objects whose keys are the records' field names. `TramoT` begins at slot 0, the other
/// arrays at 1; `error` stands in a stair only when its calculation ended in one. A station of the flight has
/// its `X`, m in plan from the landing, and one of the landing its `Angulo`, degrees from the crown.
/// `EmpujeEstatico` is the thrust by statics beside the prescribed horizontal reaction.
std::string GeneralesJson(const DatosGenerales& generales);
std::string EscaleraTJson(const DatosEscaleraT& escalera, const ResultadosEscaleraT& resultados,
                          const Avisos& avisos);

}  // namespace trabex::escaleras::salida
