#include "drawing/qt/TrazosFinos.h"

#include <QImage>
#include <QPainter>

#include "drawing/Trazos.h"
#include "drawing/qt/ImagenDeHoja.h"
#include "drawing/qt/LienzoQt.h"

namespace trabex::dibujo::qt {

std::string TrazosFinos(std::int32_t ancho, std::int32_t alto, const std::function<void(Lienzo&)>& dibujar) {
    // A point that takes no paint: it only measures texts.
    QImage punto(1, 1, QImage::Format_RGB32);
    punto.setDotsPerMeterX(PuntosPorMetro * FinuraDeTrazos);
    punto.setDotsPerMeterY(PuntosPorMetro * FinuraDeTrazos);
    QPainter pintor(&punto);
    pintor.setClipRect(QRect());
    LienzoQt medidor(pintor, ancho * FinuraDeTrazos, alto * FinuraDeTrazos);
    LienzoConTrazos lienzo(medidor);
    dibujar(lienzo);
    return lienzo.Trazos();
}

EstadoVista EnTrazosFinos(EstadoVista vista) {
    vista.PanX *= FinuraDeTrazos;
    vista.PanY *= FinuraDeTrazos;
    vista.EscalaBase /= FinuraDeTrazos;
    return vista;
}

}  // namespace trabex::dibujo::qt
