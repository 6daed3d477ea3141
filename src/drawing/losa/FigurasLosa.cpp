#include "drawing/losa/FigurasLosa.h"

#include <array>

#include "drawing/Primitivas.h"

namespace trabex::dibujo::losa {

void DibujeBanda(const Plano& plano, const EjesDeHoja& ejes, std::size_t i, double desde, double hasta,
                 const std::optional<Pluma>& pluma, Color relleno) {
    const auto punto = [&](std::size_t eje, double sobre) {
        return PuntoLienzo{plano.X(ejes.EjesX[eje]), plano.Y(ejes.EjesY[eje] + sobre)};
    };
    const std::array<PuntoLienzo, 4> banda{punto(i, desde), punto(i + 1, desde), punto(i + 1, hasta),
                                           punto(i, hasta)};
    plano.ElLienzo().Poligono(banda, pluma, relleno);
}

PuntoLienzo DibujeFlechaDeCarga(Plano& plano, const EjesDeHoja& ejes, std::size_t i, double d) {
    const Lugar lugar = EnTramo(ejes, i, d);
    const std::int32_t x = plano.X(lugar.x);
    const std::int32_t y = plano.Y(lugar.y + BordeCarga);
    const double E = plano.Escala();
    DibujeFlecha(plano.ElLienzo(), x, y, HaciaAbajo, FlechaBloque, E);
    plano.Reservar({x - 0.15 * E, y - 0.5 * E, 0.3 * E, 0.5 * E});
    return {x, y};
}

}  // namespace trabex::dibujo::losa
