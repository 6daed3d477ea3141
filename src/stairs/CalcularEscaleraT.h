#pragma once

#include "base/DatosGenerales.h"
#include "stairs/DatosEscaleraT.h"
#include "stairs/ResultadosEscaleraT.h"

namespace trabex::escaleras {

/// Takes a self-supporting stair to its finished results: statics in closed form, steel and stirrups at
/// eleven stations of the flight, steel and shear at seven of the landing, reactions.
///
/// A stair with `L`, `B` or `H` of exactly 0 leaves the results untouched. A run-time error ends the
/// calculation with the results as far as they were filled, field by field, and the first fault in
/// `resultados.Error`: what was not reached in the arrays is zero, the reactions keep what they held.
void CalcularEscaleraT(const DatosEscaleraT& escalera, const DatosGenerales& generales,
                       ResultadosEscaleraT& resultados);

/// Horizontal reaction by statics, kgf: the projection of the support's axial force less that of its shear,
/// which is the thrust that the flights exert on each other all along. It stands beside the prescribed
/// `ReaccionHorizontal`, never in its place.
double EmpujeEstatico(const ResultadosEscaleraT& resultados);

}  // namespace trabex::escaleras
