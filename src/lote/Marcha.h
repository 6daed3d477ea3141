#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "lote/EnParalelo.h"

namespace trabex::lote {

/// How a run goes: on how many threads, and whom it tells how far it is.
struct Marcha {
    unsigned Hilos = 1;
    /// `hechos` of `total` steps of a task are done; called by any of the threads, one at a time. Empty:
    /// nobody listens.
    std::function<void(const std::string& tarea, std::size_t hechos, std::size_t total)> Avance{};
};

/// As EnParalelo, telling how far the task is.
void Repartir(const Marcha& marcha, const std::string& tarea, std::size_t cuantos,
              const std::function<void(std::size_t i, unsigned hilo)>& trabajo);

}  // namespace trabex::lote
