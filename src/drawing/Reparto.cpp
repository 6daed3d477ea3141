#include "drawing/Reparto.h"

#include <cstddef>

namespace trabex::dibujo {

namespace {
/// Neighbours that touch: where the first of them stands, and how many they are.
struct Bloque {
    double Inicio = 0;
    std::size_t Cuantos = 0;
};
}  // namespace

// With the least separation taken off, touching places coincide: the best ascending series is the mean of
// each block of neighbours that are out of order (pool adjacent violators).
std::vector<double> Repartir(const std::vector<double>& lugares, double separacion) {
    std::vector<Bloque> bloques;
    for (std::size_t i = 0; i < lugares.size(); ++i) {
        Bloque ultimo{lugares[i] - static_cast<double>(i) * separacion, 1};
        while (!bloques.empty() && bloques.back().Inicio > ultimo.Inicio) {
            const Bloque previo = bloques.back();
            bloques.pop_back();
            const double peso = static_cast<double>(previo.Cuantos);
            const double otro = static_cast<double>(ultimo.Cuantos);
            ultimo = {(previo.Inicio * peso + ultimo.Inicio * otro) / (peso + otro),
                      previo.Cuantos + ultimo.Cuantos};
        }
        bloques.push_back(ultimo);
    }
    std::vector<double> repartidos;
    for (const Bloque& bloque : bloques) {
        for (std::size_t k = 0; k < bloque.Cuantos; ++k)
            repartidos.push_back(bloque.Inicio + static_cast<double>(repartidos.size()) * separacion);
    }
    return repartidos;
}

}  // namespace trabex::dibujo
