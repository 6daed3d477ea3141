#include "drawing/losa/Apoyos.h"

#include <algorithm>
#include <array>

#include "drawing/Primitivas.h"
#include "drawing/losa/FigurasLosa.h"
#include "slab/Losa.h"

namespace trabex::dibujo::losa {

namespace {

constexpr Color FondoTriangulo{255, 219, 117};
constexpr Color FondoRodillo{253, 192, 160};
constexpr double LadoDeApoyo = 0.2;

void DibujeTriangulo(Lienzo& lienzo, PuntoLienzo punta, PuntoLienzo base1, PuntoLienzo base2) {
    const std::array<PuntoLienzo, 3> figura{punta, base1, base2};
    lienzo.Poligono(figura, PlumaContorno, FondoTriangulo);
}

}  // namespace

void DibujeApoyo(const Plano& p, double xEje, double yEje, std::int16_t tipo) {
    Lienzo& lienzo = p.ElLienzo();
    const std::int32_t lado = Pixeles(p.Escala() * LadoDeApoyo);
    const std::int32_t radio = std::max(1, Pixeles(p.Escala() * LadoDeApoyo / 4));
    const std::int32_t x = p.X(xEje);
    const std::int32_t y = p.Fila(MediaBanda, yEje);
    const std::int32_t medio = Pixeles(lado / 2.0);
    switch (tipo) {
        case losas::ApoyoFijo:
            DibujeTriangulo(lienzo, {x, y}, {x - lado, y + lado}, {x + lado, y + lado});
            DibujeLinea(lienzo, x - lado - medio, y + lado, x + lado + medio, y + lado, 2,
                        EstiloLinea::Solida, Contorno);
            return;
        case losas::RodilloEnX:
            DibujeTriangulo(lienzo, {x, y}, {x - lado, y + lado}, {x + lado, y + lado});
            for (const std::int32_t centro : {x - medio, x + medio})
                lienzo.Circulo({centro, y + lado + radio}, radio, PlumaContorno, FondoRodillo);
            return;
        case losas::RodilloEnY:
            DibujeTriangulo(lienzo, {x, y + lado}, {x - lado, y}, {x - lado, y + 2 * lado});
            for (const std::int32_t centro : {y + lado - medio, y + lado + medio})
                lienzo.Circulo({x - lado - radio, centro}, radio, PlumaContorno, FondoRodillo);
            DibujeLinea(lienzo, x - lado - 2 * radio, y, x - lado - 2 * radio, y + 2 * lado, 1,
                        EstiloLinea::Solida, Contorno);
            return;
        case losas::Empotramiento: {
            const std::int32_t alto = Pixeles(p.Escala() * 0.25);
            const std::int32_t centro = p.Y(yEje);
            const std::array<PuntoLienzo, 4> figura{{{x - medio, centro - alto},
                                                     {x + medio, centro - alto},
                                                     {x + medio, centro + alto},
                                                     {x - medio, centro + alto}}};
            lienzo.Poligono(figura, PlumaContorno, FondoTriangulo);
            return;
        }
        default:
            return;
    }
}

}  // namespace trabex::dibujo::losa
