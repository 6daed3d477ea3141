#include "reports/montaje/qt/SuperficieQt.h"

#include <QBuffer>

#include "drawing/qt/ImagenDeHoja.h"
#include "reports/salidas/ImagenDePaleta.h"

namespace trabex {

namespace {

constexpr std::int32_t TwipsPorUnidad = 15;
constexpr int Calidad = 100;

}  // namespace

void SuperficieQt::Dibujar(std::int32_t ancho, std::int32_t alto,
                           const std::function<void(Lienzo&)>& dibujar) {
    imagen_ = DibujarImagen(ancho / TwipsPorUnidad, alto / TwipsPorUnidad, finura_, dibujar);
}

Bytes SuperficieQt::MapaDeBits() const {
    const auto ancho = static_cast<std::size_t>(imagen_.width());
    const auto alto = static_cast<std::size_t>(imagen_.height());
    const auto* pixeles = reinterpret_cast<const std::uint32_t*>(imagen_.constBits());
    ImagenDePaleta reducida = ReducirColores({pixeles, ancho * alto}, ancho, alto);
    reducida.PuntosPorMetro = static_cast<std::int32_t>(PuntosPorMetro * finura_);
    return MapaDeBitsDe(reducida);
}

Bytes SuperficieQt::Foto() const {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    imagen_.save(&bytes, "JPG", Calidad);
    const auto* datos = reinterpret_cast<const std::byte*>(bytes.data().constData());
    return {datos, datos + bytes.data().size()};
}

}  // namespace trabex
