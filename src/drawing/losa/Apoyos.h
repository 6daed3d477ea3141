#pragma once

#include <cstdint>

#include "drawing/Plano.h"

namespace trabex::dibujo::losa {

/// Symbol of a support at a joint of the world: a pin stands on the ground, a roller along X on two wheels, a
/// roller along Y leans on a wall by two wheels, a fixed joint is a block about it; no support has none.
void DibujeApoyo(const Plano& plano, double x, double y, std::int16_t tipo);

}  // namespace trabex::dibujo::losa
