#pragma once

#include <cstddef>
#include <functional>

namespace trabex::salidas {

/// Told again and again how much of a file is written, from 0 to 1; false ends the writing. Empty: nobody
/// listens.
using Avance = std::function<bool(double parte)>;

/// What ends a writing that nobody wants any more; the file that stood there stays.
struct EscrituraCancelada {};

inline void Avisar(const Avance& avance, std::size_t hechos, std::size_t total) {
    if (avance && !avance(static_cast<double>(hechos) / static_cast<double>(total)))
        throw EscrituraCancelada();
}

}  // namespace trabex::salidas
