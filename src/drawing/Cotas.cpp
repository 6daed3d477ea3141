#include "drawing/Cotas.h"

#include "drawing/Primitivas.h"

namespace trabex::dibujo {

namespace {
constexpr std::int32_t PixelesSobreLinea = 1;
constexpr std::int32_t PixelesALaLinea = 6;
}  // namespace

void Acotar(const Plano& plano, PuntoLienzo desde, PuntoLienzo hasta, std::string_view texto,
            TextoDeCota lugar, const Pluma& pluma) {
    Lienzo& lienzo = plano.ElLienzo();
    const bool horizontal = lugar == TextoDeCota::Encima || lugar == TextoDeCota::AlFinal;
    lienzo.Linea(desde, hasta, pluma);
    DibujeFlechaPixel(lienzo, desde.x, desde.y, horizontal ? HaciaIzquierda : HaciaArriba, pluma.Tinta);
    DibujeFlechaPixel(lienzo, hasta.x, hasta.y, horizontal ? HaciaDerecha : HaciaAbajo, pluma.Tinta);

    const std::int32_t alto = lienzo.Medir("WW").Alto;
    const std::int32_t lado = plano.Unidades(PixelesALaLinea);
    const std::int32_t enMedio = (desde.y + hasta.y) / 2 - alto / 2;
    switch (lugar) {
        case TextoDeCota::Encima:
            return plano.Escribir(texto, Ancla::Centro, (desde.x + hasta.x) / 2,
                                  desde.y - alto - plano.Unidades(PixelesSobreLinea));
        case TextoDeCota::AlFinal:
            return plano.Escribir(texto, Ancla::Izquierda, hasta.x + lado, enMedio);
        case TextoDeCota::Izquierda:
            return plano.Escribir(texto, Ancla::Derecha, desde.x - lado, enMedio);
        case TextoDeCota::Derecha:
            return plano.Escribir(texto, Ancla::Izquierda, desde.x + lado, enMedio);
    }
}

}  // namespace trabex::dibujo
