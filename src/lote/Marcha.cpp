#include "lote/Marcha.h"

#include <mutex>

namespace trabex::lote {

void Repartir(const Marcha& marcha, const std::string& tarea, std::size_t cuantos,
              const std::function<void(std::size_t, unsigned)>& trabajo) {
    std::mutex turno;
    std::size_t hechos = 0;
    EnParalelo(marcha.Hilos, cuantos, [&](std::size_t i, unsigned hilo) {
        trabajo(i, hilo);
        if (!marcha.Avance) return;
        const std::scoped_lock espera(turno);
        marcha.Avance(tarea, ++hechos, cuantos);
    });
}

}  // namespace trabex::lote
