#pragma once

#include "base/DatosGenerales.h"
#include "helical/DatosEscaleraH.h"
#include "helical/ResultadosEscaleraH.h"

namespace trabex::helices {

/// Takes a helical stair to its finished results: redundants in closed form, forces at the stations of both
/// halves, reactions, steel and stirrups.
///
/// Nothing is checked beforehand. A run-time error ends the calculation with the results as far as they were
/// filled, field by field, and the first fault in `resultados.Error`. What was not reached in the arrays is
/// zero; the arrays themselves, when not reached, and the other values keep what they held.
void CalcularEscaleraH(const DatosEscaleraH& escalera, const DatosGenerales& generales,
                       ResultadosEscaleraH& resultados);

/// Horizontal reaction by statics, kgf: what N·cos α − QX·sin α comes to at the support, −X·W·R·sin φ, in the
/// direction of the axis in plan. (The whole one, with the radial shear QY, is |X|·W·R.) It stands beside the
/// prescribed `Fh`, never in its place.
double EmpujeEstatico(const DatosEscaleraH& escalera, const ResultadosEscaleraH& resultados);

}  // namespace trabex::helices
