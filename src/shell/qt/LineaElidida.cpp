#include "shell/qt/LineaElidida.h"

#include <QPainter>

namespace trabex::programa::qt {

LineaElidida::LineaElidida(const char* nombre, QWidget* padre) : QLabel(padre) {
    setObjectName(nombre);
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void LineaElidida::paintEvent(QPaintEvent* /*evento*/) {
    const QRect lugar = contentsRect();
    QPainter(this).drawText(lugar, Qt::AlignLeft | Qt::AlignVCenter,
                            fontMetrics().elidedText(text(), Qt::ElideMiddle, lugar.width()));
}

}  // namespace trabex::programa::qt
