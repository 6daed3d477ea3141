#include "drawing/losa/EjesDeHoja.h"

#include <algorithm>
#include <cmath>

namespace trabex::dibujo::losa {

EjesDeHoja UbicarEjes(const losas::Losa& losa, const GrupoDeTramos& tramos) {
    const std::size_t N = losas::NumeroTramos(losa);
    EjesDeHoja ejes;
    double antes = 0;
    for (std::size_t i = 1; i < tramos.Primero; ++i) antes += losa.Tramos[i].LT;
    for (std::size_t i = tramos.Primero; i <= tramos.Ultimo; ++i) ejes.Longitud += losa.Tramos[i].LT;
    ejes.EjesX.assign(N + 2, 0);
    ejes.EjesY.assign(N + 2, 0);
    ejes.EjesX[1] = -ejes.Longitud / 2 - antes;
    for (std::size_t i = 1; i <= N; ++i) ejes.EjesX[i + 1] = ejes.EjesX[i] + losa.Tramos[i].LT;
    for (std::size_t k = 1; k < losa.JuntasD.size(); ++k) {
        const losas::JuntaD& junta = losa.JuntasD[k];
        if (junta.Junta < 1 || static_cast<std::size_t>(junta.Junta) > N + 1) continue;
        ejes.EjesX[static_cast<std::size_t>(junta.Junta)] += junta.x;
        ejes.EjesY[static_cast<std::size_t>(junta.Junta)] += junta.y;
    }
    const auto primero = ejes.EjesY.begin() + static_cast<std::ptrdiff_t>(tramos.Primero);
    const auto [menor, mayor] =
        std::minmax_element(primero, ejes.EjesY.begin() + static_cast<std::ptrdiff_t>(tramos.Ultimo + 2));
    ejes.YMinimo = *menor;
    ejes.YMaximo = *mayor;
    return ejes;
}

EjesDeHoja UbicarEjes(const losas::Losa& losa) {
    return UbicarEjes(losa, {1, losas::NumeroTramos(losa)});
}

double PendienteDeTramo(const EjesDeHoja& ejes, std::size_t i) {
    const double dx = ejes.EjesX[i + 1] - ejes.EjesX[i];
    const double dy = ejes.EjesY[i + 1] - ejes.EjesY[i];
    return dx != 0 ? std::atan(dy / dx) : 0;
}

Lugar EnTramo(const EjesDeHoja& ejes, std::size_t i, double d) {
    return {ejes.EjesX[i] + d, ejes.EjesY[i] + std::tan(PendienteDeTramo(ejes, i)) * d};
}

Lugar MitadDeTramo(const EjesDeHoja& ejes, std::size_t i) {
    return {(ejes.EjesX[i] + ejes.EjesX[i + 1]) / 2, (ejes.EjesY[i] + ejes.EjesY[i + 1]) / 2};
}

}  // namespace trabex::dibujo::losa
