#pragma once

#include "base/DatosGenerales.h"
#include "helical/DatosEscaleraH.h"
#include "helical/ResultadosEscaleraH.h"

namespace trabex::helices {

/// Takes a helical stair to its finished results: redundants in closed form, forces at the stations of both
/// halves, reactions, steel and stirrups.
///
/// Nothing is checked beforehand. A run-time error ends the calculation with the results as far as they were
/// filled, station by station, and the error in `resultados.Error`.
void CalcularEscaleraH(const DatosEscaleraH& escalera, const DatosGenerales& generales,
                       ResultadosEscaleraH& resultados);

}  // namespace trabex::helices
