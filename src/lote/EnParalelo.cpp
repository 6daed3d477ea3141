#include "lote/EnParalelo.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <thread>
#include <vector>

namespace trabex::lote {

void EnParalelo(unsigned hilos, std::size_t cuantos,
                const std::function<void(std::size_t, unsigned)>& trabajo) {
    const auto equipo = static_cast<unsigned>(std::min<std::size_t>(std::max(1U, hilos), cuantos));
    std::atomic<std::size_t> siguiente{0};
    std::vector<std::exception_ptr> faltas(equipo);
    const auto trabajar = [&](unsigned hilo) {
        try {
            for (std::size_t i = siguiente++; i < cuantos; i = siguiente++) trabajo(i, hilo);
        } catch (...) {
            faltas[hilo] = std::current_exception();
        }
    };
    {
        std::vector<std::jthread> otros;
        for (unsigned hilo = 1; hilo < equipo; ++hilo) otros.emplace_back(trabajar, hilo);
        if (equipo > 0) trabajar(0);
    }
    for (const std::exception_ptr& falta : faltas) {
        if (falta) std::rethrow_exception(falta);
    }
}

}  // namespace trabex::lote
