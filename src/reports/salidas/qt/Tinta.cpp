#include "reports/salidas/qt/Tinta.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>
#include <algorithm>
#include <vector>

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

namespace {

bool EnBlanco(const QImage& mapa, int fila) {
    const auto* pixeles = reinterpret_cast<const QRgb*>(mapa.constScanLine(fila));
    return std::all_of(pixeles, pixeles + mapa.width(),
                       [](QRgb pixel) { return (pixel & RGB_MASK) == RGB_MASK; });
}

/// The strips of a picture, of its whole width, between which it is blank over some height.
std::vector<QRect> Franjas(const QImage& mapa) {
    constexpr int BlancoQueSepara = 24;  // rows; a strip costs the file some bytes of its own
    std::vector<QRect> franjas;
    for (int fila = 0; fila < mapa.height(); ++fila) {
        if (EnBlanco(mapa, fila)) continue;
        if (franjas.empty() || fila - franjas.back().bottom() > BlancoQueSepara)
            franjas.emplace_back(0, fila, mapa.width(), 1);
        franjas.back().setBottom(fila);
    }
    return franjas;
}

/// A drawing is mostly blank paper, which a file need not compress: only its strips are put on the page.
void PonerFranjas(QPainter& pintor, const QRectF& donde, const QImage& mapa) {
    const double alto = donde.height() / mapa.height();
    for (const QRect& franja : Franjas(mapa))
        pintor.drawImage(
            QRectF(donde.x(), donde.y() + alto * franja.y(), donde.width(), alto * franja.height()),
            mapa.copy(franja));
}

}  // namespace

void TintaDePintor::Mapa(const QRectF& donde, const documento::Imagen& imagen) {
    const almacen::Bytes bytes = imagen.Leer();
    QImage mapa;
    mapa.loadFromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()));
    // On a raster a drawing shown much smaller is averaged, which the painter by itself is not good at. One
    // of a palette would get back into it by dots.
    const QSize visto = pintor_.combinedTransform().mapRect(donde).size().toSize();
    if (pintor_.paintEngine()->type() == QPaintEngine::Raster && visto.width() * 2 < mapa.width())
        mapa = mapa.convertToFormat(QImage::Format_RGB32)
                   .scaled(visto, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    // Line drawings: without loss, and smooth where the screen shows them smaller.
    pintor_.setRenderHint(QPainter::LosslessImageRendering);
    pintor_.setRenderHint(QPainter::SmoothPixmapTransform);
    if (pintor_.paintEngine()->type() == QPaintEngine::Pdf)
        PonerFranjas(pintor_, donde, mapa.convertToFormat(QImage::Format_RGB32));
    else
        pintor_.drawImage(donde, mapa);
}

}  // namespace trabex::salidas::qt
