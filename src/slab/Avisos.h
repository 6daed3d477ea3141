#pragma once

#include "base/Aviso.h"
#include "base/Formatos.h"
#include "slab/ValoresLosa.h"

namespace trabex::losas {

/// What the loads of a case come to, and what the supports take of it, kgf: along Y, and along X, where there
/// is no load. Point loads that are no part of the analysis (over a support, past their span) don't count.
struct Equilibrio {
    double Cargas = 0;
    double RV = 0;
    double RH = 0;
};
Equilibrio EquilibrioDe(const LosaCalculada& losa, CasoCarga caso);

/// What the engineer should know beside the numbers of a slab: that it does not hold, that its calculation
/// was cut short, that reactions and loads differ (by more than 1 kgf and a thousandth of the loads), which
/// loads are no part of the analysis, and where the steel is below the minimum, in compression, or negative.
/// Empty for a slab that can't be calculated.
Avisos AvisosDe(const LosaCalculada& losa, const Separadores& numeros = {});

}  // namespace trabex::losas
