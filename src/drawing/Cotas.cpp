#include "drawing/Cotas.h"

#include "drawing/Primitivas.h"

namespace trabex::dibujo {

namespace {
constexpr std::int32_t PixelesALaLinea = 6;
}  // namespace

void DibujeCota(const Plano& plano, PuntoLienzo desde, PuntoLienzo hasta, SentidoDeCota sentido,
                const Pluma& pluma) {
    Lienzo& lienzo = plano.ElLienzo();
    const bool horizontal = sentido == SentidoDeCota::Horizontal;
    lienzo.Linea(desde, hasta, pluma);
    DibujeFlechaPixel(lienzo, desde.x, desde.y, horizontal ? HaciaIzquierda : HaciaArriba, pluma.Tinta);
    DibujeFlechaPixel(lienzo, hasta.x, hasta.y, horizontal ? HaciaDerecha : HaciaAbajo, pluma.Tinta);
}

void Acotar(const Plano& plano, PuntoLienzo desde, PuntoLienzo hasta, std::string_view texto,
            TextoDeCota lugar, const Pluma& pluma) {
    const bool horizontal = lugar == TextoDeCota::Encima || lugar == TextoDeCota::AlFinal;
    DibujeCota(plano, desde, hasta, horizontal ? SentidoDeCota::Horizontal : SentidoDeCota::Vertical, pluma);
    const std::int32_t alto = plano.ElLienzo().Medir("WW").Alto;
    const std::int32_t lado = plano.Unidades(PixelesALaLinea);
    const std::int32_t enMedio = (desde.y + hasta.y) / 2 - alto / 2;
    switch (lugar) {
        case TextoDeCota::Encima:
            return plano.Escribir(texto, Ancla::Centro, (desde.x + hasta.x) / 2,
                                  desde.y - alto - plano.Unidades(PixelesSobreCota));
        case TextoDeCota::AlFinal:
            return plano.Escribir(texto, Ancla::Izquierda, hasta.x + lado, enMedio);
        case TextoDeCota::Izquierda:
            return plano.Escribir(texto, Ancla::Derecha, desde.x - lado, enMedio);
        case TextoDeCota::Derecha:
            return plano.Escribir(texto, Ancla::Izquierda, desde.x + lado, enMedio);
    }
}

}  // namespace trabex::dibujo
