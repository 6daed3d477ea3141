#include "shell/qt/LienzoTapiz.h"

#include <QPainter>

#include "shell/qt/ComunVentanas.h"

namespace trabex {

LienzoTapiz::LienzoTapiz(QWidget* padre) : QWidget(padre) {
    setMinimumSize(160, 90);
}

bool LienzoTapiz::Poner(const Tapiz& tapiz) {
    if (tapiz.Imagen != tapiz_.Imagen || imagen_.isNull()) imagen_ = QPixmap(Q(tapiz.Imagen));
    tapiz_ = tapiz;
    update();
    return !imagen_.isNull();
}

/// Alignments: 0 centred, 1 at the near side, 2 at the far side.
QRect LienzoTapiz::Lugar() const {
    if (tapiz_.Ajustar) return rect();
    const auto margen = [](int hueco, std::uint8_t alineacion) {
        return alineacion == 0 ? hueco / 2 : alineacion == 1 ? 0 : hueco;
    };
    return {margen(width() - imagen_.width(), tapiz_.Horizontal),
            margen(height() - imagen_.height(), tapiz_.Vertical), imagen_.width(), imagen_.height()};
}

void LienzoTapiz::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.fillRect(rect(), palette().color(QPalette::Mid));
    pintor.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!imagen_.isNull()) pintor.drawPixmap(Lugar(), imagen_);
}

}  // namespace trabex
