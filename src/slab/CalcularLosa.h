#pragma once

#include "slab/Losa.h"
#include "slab/ResultadosLosa.h"

namespace trabex::losas {

/// Takes a slab to its finished results: analysis, steel at joints and spans, solid zones, inflection points.
///
/// A slab without spans, with a span of length 0, or of total length 0 leaves the results untouched. A
/// run-time error ends the calculation, with the results as far as they were filled and the error in
/// `resultados.Error`.
void CalcularLosa(const Losa& losa, const DatosGenerales& generales, ResultadosLosa& resultados);

}  // namespace trabex::losas
