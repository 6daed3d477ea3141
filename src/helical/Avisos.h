#pragma once

#include "base/Aviso.h"
#include "base/DatosGenerales.h"
#include "base/Formatos.h"
#include "helical/DatosEscaleraH.h"
#include "helical/ResultadosEscaleraH.h"

namespace trabex::helices {

/// What the engineer should know beside the numbers of a helix: a calculation that was cut short, an interval
/// that leaves centre or support without a station, steel below the minimum, in compression or negative,
/// stirrups under 5 cm. Empty for one that was not calculated.
Avisos AvisosDe(const DatosEscaleraH& escalera, const DatosGenerales& generales,
                const ResultadosEscaleraH& resultados, const Separadores& numeros = {});

}  // namespace trabex::helices
