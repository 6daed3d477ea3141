#include "shell/qt/AyudaF1.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace trabex::programa::qt {

AyudaF1::AyudaF1(const Servicios& servicios) : servicios_(servicios) {
    QCoreApplication::instance()->installEventFilter(this);
}

/// A key reaches the window's handle before its widgets: there it is taken once.
bool AyudaF1::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() != QEvent::KeyPress || !objeto->isWindowType()) return false;
    const auto& tecla = static_cast<const QKeyEvent&>(*evento);
    if (tecla.key() != Qt::Key_F1 || tecla.modifiers() != Qt::NoModifier) return false;
    AbrirODecir(servicios_, servicios_.Carpetas.CaminoPrograma / "Manual" / "ayuda" / (pagina_ + ".html"));
    return true;
}

}  // namespace trabex::programa::qt
