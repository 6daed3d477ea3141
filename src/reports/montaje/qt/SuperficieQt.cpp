#include "reports/montaje/qt/SuperficieQt.h"

#include <QBuffer>

#include "drawing/Trazos.h"
#include "drawing/qt/ImagenDeHoja.h"
#include "reports/salidas/ImagenPng.h"

namespace trabex::montaje::qt {

namespace {

constexpr int Calidad = 100;

}  // namespace

void SuperficieQt::Dibujar(std::int32_t ancho, std::int32_t alto,
                           const std::function<void(dibujo::Lienzo&)>& dibujar) {
    imagen_ = dibujo::qt::DibujarImagen(ancho / dibujo::TwipsPorUnidad, alto / dibujo::TwipsPorUnidad,
                                        finura_, [&](dibujo::Lienzo& lienzo) {
                                            dibujo::LienzoConTrazos conTrazos(lienzo);
                                            dibujar(conTrazos);
                                            trazos_ = conTrazos.Trazos();
                                        });
}

salidas::ImagenDePaleta SuperficieQt::Reducida() const {
    const auto ancho = static_cast<std::size_t>(imagen_.width());
    const auto alto = static_cast<std::size_t>(imagen_.height());
    const auto* pixeles = reinterpret_cast<const std::uint32_t*>(imagen_.constBits());
    salidas::ImagenDePaleta reducida = salidas::ReducirColores({pixeles, ancho * alto}, ancho, alto);
    reducida.PuntosPorMetro = static_cast<std::int32_t>(dibujo::qt::PuntosPorMetro * finura_);
    return reducida;
}

ImagenMontada SuperficieQt::Imagen() const {
    const salidas::ImagenDePaleta reducida = Reducida();
    return {salidas::MapaDeBitsDe(reducida), salidas::PngDe(reducida), Trazos()};
}

almacen::Bytes SuperficieQt::Trazos() const {
    const auto* trazos = reinterpret_cast<const std::byte*>(trazos_.data());
    return {trazos, trazos + trazos_.size()};
}

almacen::Bytes SuperficieQt::Png() const {
    return salidas::PngDe(Reducida());
}

almacen::Bytes SuperficieQt::Foto() const {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    imagen_.save(&bytes, "JPG", Calidad);
    const auto* datos = reinterpret_cast<const std::byte*>(bytes.data().constData());
    return {datos, datos + bytes.data().size()};
}

}  // namespace trabex::montaje::qt
