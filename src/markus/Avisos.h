#pragma once

#include <span>

#include "base/Aviso.h"
#include "markus/CalculeMarcus.h"

namespace trabex::marcus {

/// What the engineer should know beside the shares of a level's panels: cases out of 1 … 9, which repeat the
/// coefficients of the panel before, and lengths that are not above 0.
Avisos AvisosDe(std::span<const PanoMarcus> panos);

}  // namespace trabex::marcus
