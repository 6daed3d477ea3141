#pragma once

#include "base/DatosGenerales.h"
#include "stairs/DatosEscaleraT.h"
#include "stairs/ResultadosEscaleraT.h"

namespace trabex::escaleras {

/// Takes a self-supporting stair to its finished results: statics in closed form, steel and stirrups at
/// eleven stations of the flight, steel and shear at seven of the landing, reactions.
///
/// A stair with `L`, `B` or `H` of exactly 0 leaves the results untouched. A run-time error ends the
/// calculation with the results as far as they were filled (a station's forces, then its steel) and the error
/// in `resultados.Error`: stations that were not reached are zeros, the reactions keep what they held.
void CalcularEscaleraT(const DatosEscaleraT& escalera, const DatosGenerales& generales,
                       ResultadosEscaleraT& resultados);

}  // namespace trabex::escaleras
