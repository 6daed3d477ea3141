#include "shell/qt/FocoAlCerrar.h"

#include <QApplication>
#include <QEvent>

namespace trabex::programa::qt {

namespace {

// The desktop's answers to a closed window arrive within these.
constexpr int Espera = 60;  // ms
constexpr int Veces = 10;

QWidget* VisibleDebajoDe(const QWidget& ventana) {
    QWidget* padre = ventana.parentWidget();
    while (padre != nullptr && !padre->window()->isVisible()) padre = padre->window()->parentWidget();
    return padre == nullptr ? nullptr : padre->window();
}

bool TomaElTeclado(const QWidget& ventana) {
    const Qt::WindowType tipo = ventana.windowType();
    return ventana.isWindow() && (tipo == Qt::Window || tipo == Qt::Dialog);
}

}  // namespace

FocoAlCerrar::FocoAlCerrar() {
    reloj_.setInterval(Espera);
    QObject::connect(&reloj_, &QTimer::timeout, this, [this] { Comprobar(); });
    QCoreApplication::instance()->installEventFilter(this);
}

bool FocoAlCerrar::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::Hide && objeto->isWidgetType() && !evento->spontaneous()) {
        const auto& ventana = static_cast<const QWidget&>(*objeto);
        if (TomaElTeclado(ventana)) {
            heredera_ = VisibleDebajoDe(ventana);
            faltan_ = Veces;
            reloj_.start();
        }
    }
    return false;
}

void FocoAlCerrar::Comprobar() {
    if (--faltan_ <= 0) reloj_.stop();
    if (QGuiApplication::focusWindow() != nullptr) return;
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* destino = modal != nullptr ? modal : heredera_.data();
    if (destino != nullptr && destino->isVisible()) destino->activateWindow();
}

}  // namespace trabex::programa::qt
