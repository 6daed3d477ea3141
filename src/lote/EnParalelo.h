#pragma once

#include <cstddef>
#include <functional>

namespace trabex::lote {

/// Runs `trabajo(i, hilo)` once for each i of 0 … cuantos − 1, begun in that order, on `hilos` threads, the
/// caller's among them; `hilo` of 0 … hilos − 1 tells which one runs. Returns when all have ended. What one
/// throws ends its thread's share and is thrown again at the end.
void EnParalelo(unsigned hilos, std::size_t cuantos,
                const std::function<void(std::size_t i, unsigned hilo)>& trabajo);

}  // namespace trabex::lote
