#pragma once

#include "base/Aviso.h"
#include "base/Formatos.h"
#include "stairs/ValoresEscaleraT.h"

namespace trabex::escaleras {

/// What the engineer should know beside the numbers of a stair: a calculation that was cut short, steel below
/// the minimum, in compression or negative, stirrups under 5 cm, a landing that fails in shear. Empty for a
/// stair that can't be calculated.
Avisos AvisosDe(const EscaleraCalculada& escalera, const Separadores& numeros = {});

}  // namespace trabex::escaleras
