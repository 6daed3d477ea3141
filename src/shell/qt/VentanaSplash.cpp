#include "shell/qt/VentanaSplash.h"

#include <QPainter>
#include <QTimer>

#include "base/Edicion.h"
#include "shell/Aplicacion.h"
#include "shell/qt/Iconos.h"

namespace trabex::programa::qt {

namespace {

constexpr int Milisegundos = 60;  // the splash covers the start and adds nothing to it

QPixmap Caratula() {
    QPixmap mapa(540, 220);
    mapa.fill(QColor(223, 233, 236));
    QPainter pintor(&mapa);
    pintor.setPen(QColor(226, 232, 239).darker(108));
    for (int x = 0; x < mapa.width(); x += 20) pintor.drawLine(x, 0, x, mapa.height());
    for (int y = 0; y < mapa.height(); y += 20) pintor.drawLine(0, y, mapa.width(), y);
    pintor.drawPixmap(28, 52, Figura("trabex", 112));
    pintor.setPen(QColor(44, 74, 82));
    QFont fuente = pintor.font();
    fuente.setPixelSize(42);
    fuente.setBold(true);
    pintor.setFont(fuente);
    pintor.drawText(164, 108, ProgramaYEdicion);
    fuente.setPixelSize(16);
    fuente.setBold(false);
    pintor.setFont(fuente);
    pintor.drawText(166, 138, QString("Trabex versión: ") + VersionPrograma);
    pintor.drawText(166, 162, "Losas y escaleras de concreto armado");
    return mapa;
}

}  // namespace

VentanaSplash::VentanaSplash(std::function<void()> alTerminar)
    : QSplashScreen(Caratula()), alTerminar_(std::move(alTerminar)) {}

void VentanaSplash::Contar() {
    QTimer::singleShot(Milisegundos, this, [this] { Terminar(); });
}

void VentanaSplash::mousePressEvent(QMouseEvent*) {
    Terminar();
}

void VentanaSplash::keyPressEvent(QKeyEvent*) {
    Terminar();
}

void VentanaSplash::Terminar() {
    if (!alTerminar_) return;
    const auto accion = std::move(alTerminar_);
    alTerminar_ = nullptr;
    accion();
    close();
}

}  // namespace trabex::programa::qt
