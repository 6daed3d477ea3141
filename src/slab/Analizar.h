#pragma once

#include "base/VigilanciaFlotante.h"
#include "slab/Losa.h"
#include "slab/ResultadosLosa.h"

namespace trabex::losas {

/// Largest number of spans: past it the 16-bit count of the stiffness matrix' rows, 3(N + 1) + 6, overflows.
inline constexpr std::size_t MaximoTramos = 10919;

/// Solves the slab as a plane frame by direct stiffness, for the permanent and the live load case, and leaves
/// displacements, reactions, end forces, the largest moment of each span and the three scalars.
///
/// One chain of prismatic Euler-Bernoulli bars with three degrees of freedom a joint (3j − 2 along X, 3j − 1
/// along Y, 3j rotation), E = 15100·√F'c (kgf/cm²), one section throughout; supports by penalty. A load on a
/// restrained direction is dropped, so a point load right over a support appears in no reaction.
///
/// Directions that nothing holds are named in `DireccionesLibres`; the numbers are those that the solver
/// gives.
///
/// Its arithmetic is done in `pasos`. Throws ErrorEjecucion, with the results filled as far as it came: 6
/// past MaximoTramos, 9 for a joint that does not exist, and what the steps throw.
void Analizar(const Losa& losa, const DatosGenerales& generales, const Pasos& pasos,
              ResultadosLosa& resultados);

/// False for a slab without spans or with one of length 0: no results come of it.
bool SePuedeAnalizar(const Losa& losa);

}  // namespace trabex::losas
