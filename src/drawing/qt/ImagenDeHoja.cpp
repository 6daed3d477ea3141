#include "drawing/qt/ImagenDeHoja.h"

#include <QPainter>
#include <cmath>

#include "drawing/qt/LienzoQt.h"

namespace trabex::dibujo::qt {

QImage DibujarImagen(std::int32_t ancho, std::int32_t alto, double finura,
                     const std::function<void(Lienzo&)>& dibujar) {
    QImage imagen(static_cast<int>(std::ceil(ancho * finura)), static_cast<int>(std::ceil(alto * finura)),
                  QImage::Format_RGB32);
    imagen.setDotsPerMeterX(PuntosPorMetro);
    imagen.setDotsPerMeterY(PuntosPorMetro);
    imagen.setDevicePixelRatio(finura);
    imagen.fill(Qt::white);
    QPainter pintor(&imagen);
    LienzoQt lienzo(pintor, ancho, alto);
    dibujar(lienzo);
    pintor.end();
    // From here on it is a picture of its own resolution.
    imagen.setDotsPerMeterX(static_cast<int>(PuntosPorMetro * finura));
    imagen.setDotsPerMeterY(static_cast<int>(PuntosPorMetro * finura));
    return imagen;
}

}  // namespace trabex::dibujo::qt
