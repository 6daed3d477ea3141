#include "markus/ui/qt/FiguraCasos.h"

#include <QPainter>
#include <algorithm>

#include "markus/CalculeMarcus.h"
#include "markus/ui/TextoDeCaso.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::marcus::ui::qt {

namespace {

constexpr int CasosPorFila = 3;

/// A fixed edge: a thick line, and strokes on the side away from the panel.
void Empotrar(QPainter& pintor, QPoint desde, QPoint hasta, QPoint afuera) {
    constexpr int paso = 5;
    pintor.setPen(QPen(pintor.pen().color(), 2));
    pintor.drawLine(desde, hasta);
    pintor.setPen(QPen(pintor.pen().color(), 1));
    const QPoint rumbo((hasta.x() > desde.x()) ? 1 : 0, (hasta.y() > desde.y()) ? 1 : 0);
    const int largo = (hasta - desde).manhattanLength();
    for (int d = 0; d + paso <= largo; d += paso)
        pintor.drawLine(desde + rumbo * (d + paso), desde + rumbo * d + afuera * paso);
}

}  // namespace

FiguraCasos::FiguraCasos(QWidget* padre) : QWidget(padre) {
    setObjectName("FiguraCasos");
    setAccessibleName("Casos de apoyo");
}

void FiguraCasos::Resaltar(std::int16_t caso) {
    if (caso == caso_) return;
    caso_ = caso;
    setAccessibleDescription(caso == 0 ? QString() : programa::qt::Q(TextoDeCaso(caso)));
    update();
}

QRect FiguraCasos::Lugar(std::int16_t caso) const {
    const int ancho = width() / CasosPorFila;
    const int alto = (height() - AltoDelPie()) / CasosPorFila;
    const int i = caso - PrimerCaso;
    return {i % CasosPorFila * ancho, i / CasosPorFila * alto, ancho, alto};
}

/// One fixed edge along X is the left one, along Y the lower one.
void FiguraCasos::DibujarCaso(QPainter& pintor, std::int16_t caso) const {
    const QRect celda = Lugar(caso).adjusted(2, 2, -2, -2);
    const bool resaltado = caso == caso_;
    if (resaltado) pintor.fillRect(celda, palette().highlight());
    const QColor color = palette().color(resaltado ? QPalette::HighlightedText : QPalette::WindowText);
    const int lado = std::min(celda.width(), celda.height()) - 20;
    QRect pano(0, 0, lado, lado);
    pano.moveCenter(celda.center());
    pintor.setPen(QPen(color, 1));
    pintor.drawRect(pano);
    pintor.drawText(pano, Qt::AlignCenter, QString::number(caso));
    const BordesDeCaso& bordes = Bordes[static_cast<std::size_t>(caso - PrimerCaso)];
    if (bordes.EnX > 0) Empotrar(pintor, pano.topLeft(), pano.bottomLeft(), {-1, 0});
    if (bordes.EnX > 1) Empotrar(pintor, pano.topRight(), pano.bottomRight(), {1, 0});
    if (bordes.EnY > 0) Empotrar(pintor, pano.bottomLeft(), pano.bottomRight(), {0, 1});
    if (bordes.EnY > 1) Empotrar(pintor, pano.topLeft(), pano.topRight(), {0, -1});
}

void FiguraCasos::paintEvent(QPaintEvent* /*evento*/) {
    QPainter pintor(this);
    for (std::int16_t caso = PrimerCaso; caso <= UltimoCaso; ++caso) DibujarCaso(pintor, caso);
    QString pie = "Rayado: empotrado.  X: →  Y: ↑";
    if (caso_ != 0) pie = programa::qt::Q(TextoDeCaso(caso_)) + "\n" + pie;
    pintor.setPen(palette().color(QPalette::WindowText));
    pintor.drawText(QRect(0, height() - AltoDelPie(), width(), AltoDelPie()),
                    Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap, pie);
}

}  // namespace trabex::marcus::ui::qt
