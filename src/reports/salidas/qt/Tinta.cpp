#include "reports/salidas/qt/Tinta.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPen>

#include "drawing/Trazos.h"
#include "drawing/qt/LienzoQt.h"
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

std::string TrazosDe(const documento::Imagen& imagen) {
    if (!imagen.LeerTrazos) return {};
    const almacen::Bytes bytes = imagen.LeerTrazos();
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

namespace {

/// Draws strokes in a room of the page; what reaches beyond their canvas is cut off, as it was there.
void RepetirEn(QPainter& pintor, const QRectF& donde, const std::string& trazos,
               const dibujo::MedidaDeTrazos& medida) {
    pintor.save();
    pintor.setClipRect(donde, Qt::IntersectClip);
    pintor.translate(donde.topLeft());
    pintor.scale(donde.width() / medida.Ancho, donde.height() / medida.Alto);
    dibujo::qt::LienzoQt lienzo(pintor, medida.Ancho, medida.Alto, nullptr,
                                dibujo::qt::LienzoQt::Unidad::DePantalla);
    dibujo::Repetir(trazos, lienzo);
    pintor.restore();
}

}  // namespace

void TintaDePintor::Mapa(const QRectF& donde, const documento::Imagen& imagen) {
    const std::string trazos = TrazosDe(imagen);
    if (const auto medida = dibujo::MedidaDe(trazos)) return RepetirEn(pintor_, donde, trazos, *medida);
    const almacen::Bytes bytes = imagen.Leer();
    QImage mapa;
    mapa.loadFromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()));
    // On a raster a picture shown much smaller is averaged, which the painter by itself is not good at. One
    // of a palette would get back into it by dots.
    const QSize visto = pintor_.combinedTransform().mapRect(donde).size().toSize();
    if (pintor_.paintEngine()->type() == QPaintEngine::Raster && visto.width() * 2 < mapa.width())
        mapa = mapa.convertToFormat(QImage::Format_RGB32)
                   .scaled(visto, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    // Without loss, and smooth where the screen shows it smaller.
    pintor_.setRenderHint(QPainter::LosslessImageRendering);
    pintor_.setRenderHint(QPainter::SmoothPixmapTransform);
    pintor_.drawImage(donde, mapa);
}

}  // namespace trabex::salidas::qt
