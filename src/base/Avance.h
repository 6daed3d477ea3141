#pragma once

#include <cstddef>
#include <functional>

namespace trabex {

/// Told again and again how much of a long work is done, from 0 to 1; false ends it. Empty: nobody listens.
using Avance = std::function<bool(double parte)>;

/// What ends a work that nobody wants any more; what it was to replace stays.
struct TrabajoCancelado {};

inline void Avisar(const Avance& avance, std::size_t hechos, std::size_t total) {
    if (avance && !avance(static_cast<double>(hechos) / static_cast<double>(total))) throw TrabajoCancelado();
}

}  // namespace trabex
