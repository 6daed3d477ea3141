#include "reports/salidas/qt/Tinta.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>

#include "reports/documento/Documento.h"

namespace trabex::salidas::qt {

void TintaDePintor::Texto(const QPointF& base, const QString& texto, const TipoDeLetra& letra,
                          const QColor& color) {
    if (letra_ != &letra) {
        pintor_.setFont(letra.Fuente());
        letra_ = &letra;
    }
    pintor_.setPen(color);
    pintor_.drawText(base, texto);
}

void TintaDePintor::Raya(const QPointF& desde, const QPointF& hasta, double grosor, const QColor& color) {
    pintor_.setPen(QPen(color, grosor, Qt::SolidLine, Qt::FlatCap));
    pintor_.drawLine(desde, hasta);
}

void TintaDePintor::Fondo(const QRectF& donde, const QColor& color) {
    pintor_.fillRect(donde, color);
}

void TintaDePintor::Mapa(const QRectF& donde, const documento::Imagen& imagen) {
    const almacen::Bytes bytes = imagen.Leer();
    QImage mapa;
    mapa.loadFromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()));
    // On a raster a drawing shown much smaller is averaged, which the painter by itself is not good at.
    const QSize visto = pintor_.combinedTransform().mapRect(donde).size().toSize();
    if (pintor_.paintEngine()->type() == QPaintEngine::Raster && visto.width() * 2 < mapa.width())
        mapa = mapa.scaled(visto, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    // Line drawings: without loss, and smooth where the screen shows them smaller.
    pintor_.setRenderHint(QPainter::LosslessImageRendering);
    pintor_.setRenderHint(QPainter::SmoothPixmapTransform);
    pintor_.drawImage(donde, mapa);
}

}  // namespace trabex::salidas::qt
