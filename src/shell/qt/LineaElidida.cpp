#include "shell/qt/LineaElidida.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace trabex::programa::qt {

LineaElidida::LineaElidida(const char* nombre, QWidget* padre) : QLabel(padre) {
    setObjectName(nombre);
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

bool LineaElidida::event(QEvent* evento) {
    if (evento->type() != QEvent::ToolTip || !toolTip().isEmpty()) return QLabel::event(evento);
    QToolTip::showText(static_cast<QHelpEvent*>(evento)->globalPos(), text().toHtmlEscaped(), this);
    return true;
}

void LineaElidida::paintEvent(QPaintEvent* /*evento*/) {
    const QRect lugar = contentsRect();
    QPainter(this).drawText(lugar, Qt::AlignLeft | Qt::AlignVCenter,
                            fontMetrics().elidedText(text(), Qt::ElideMiddle, lugar.width()));
}

}  // namespace trabex::programa::qt
