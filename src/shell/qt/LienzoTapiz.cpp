#include "shell/qt/LienzoTapiz.h"

#include <QPainter>

#include "shell/qt/ComunVentanas.h"

namespace trabex::programa::qt {

LienzoTapiz::LienzoTapiz(QWidget* padre) : QWidget(padre) {
    setMinimumSize(160, 90);
}

bool LienzoTapiz::Poner(const Tapiz& tapiz, const QPixmap& imagen) {
    if (!imagen.isNull())
        imagen_ = imagen;
    else if (tapiz.Imagen != tapiz_.Imagen || imagen_.isNull())
        imagen_ = QPixmap(Q(tapiz.Imagen));
    tapiz_ = tapiz;
    update();
    return !imagen_.isNull();
}

void LienzoTapiz::Representar(const QSize& ventana) {
    ventana_ = ventana;
}

/// Alignments: 0 centred, 1 at the near side, 2 at the far side.
QRect LienzoTapiz::Lugar(const QSize& ventana) const {
    if (tapiz_.Ajustar) return {QPoint(), ventana};
    const auto margen = [](int hueco, std::uint8_t alineacion) {
        return alineacion == 0 ? hueco / 2 : alineacion == 1 ? 0 : hueco;
    };
    return {margen(ventana.width() - imagen_.width(), tapiz_.Horizontal),
            margen(ventana.height() - imagen_.height(), tapiz_.Vertical), imagen_.width(), imagen_.height()};
}

void LienzoTapiz::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSize ventana = ventana_.isEmpty() ? size() : ventana_;
    const QSize lugar = ventana.scaled(size(), Qt::KeepAspectRatio);
    pintor.translate((width() - lugar.width()) / 2.0, (height() - lugar.height()) / 2.0);
    pintor.scale(1.0 * lugar.width() / ventana.width(), 1.0 * lugar.height() / ventana.height());
    pintor.setClipRect(QRect(QPoint(), ventana));
    pintor.fillRect(QRect(QPoint(), ventana), palette().color(QPalette::Mid));
    if (!imagen_.isNull()) pintor.drawPixmap(Lugar(ventana), imagen_);
}

}  // namespace trabex::programa::qt
