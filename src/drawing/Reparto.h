#pragma once

#include <vector>

namespace trabex::dibujo {

/// Moves places that stand closer together than `separacion` apart, each as little as possible (least
/// squares). `lugares` ascend; so does the result.
std::vector<double> Repartir(const std::vector<double>& lugares, double separacion);

}  // namespace trabex::dibujo
