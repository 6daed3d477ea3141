#pragma once

#include <vector>

#include "slab/Losa.h"

namespace trabex::losas {

/// Position of the joints, m: X along the slab, Y downward. Counts from 1; slot 0 is free.
struct CoordenadasJuntas {
    std::vector<double> X;
    std::vector<double> Y;
};

/// The joints one span after another, less `origen` along X, with the shifts of JuntasD added.
/// Throws ErrorEjecucion 9 when a shift names a joint that does not exist.
CoordenadasJuntas CoordenarJuntas(const Losa& losa, double origen);

}  // namespace trabex::losas
