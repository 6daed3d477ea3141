#include "slab/Geometria.h"

#include "base/ErrorEjecucion.h"

namespace trabex::losas {

CoordenadasJuntas CoordenarJuntas(const Losa& losa, double origen) {
    const std::size_t n = losa.Tramos.size();
    CoordenadasJuntas juntas{std::vector<double>(n + 1), std::vector<double>(n + 1)};
    double suma = 0;
    for (std::size_t j = 1; j <= n; ++j) {
        juntas.X[j] = suma - origen;
        if (j < n) suma += losa.Tramos[j].LT;
    }
    for (std::size_t k = 1; k < losa.JuntasD.size(); ++k) {
        const JuntaD& corrida = losa.JuntasD[k];
        if (corrida.Junta < 0 || static_cast<std::size_t>(corrida.Junta) > n)
            throw ErrorEjecucion(CodigoError::SubindiceFueraDeIntervalo);
        const auto junta = static_cast<std::size_t>(corrida.Junta);
        juntas.X[junta] += corrida.x;
        juntas.Y[junta] += corrida.y;
    }
    return juntas;
}

}  // namespace trabex::losas
