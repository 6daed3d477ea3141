#include "shell/qt/EntradaJuzgada.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFocusEvent>
#include <QPointer>
#include <QTabWidget>
#include <QTimer>
#include <QToolTip>
#include <algorithm>

namespace trabex::programa::qt {

namespace {

EntradaJuzgada* Juzgada(QObject* control) {
    return dynamic_cast<EntradaJuzgada*>(control);
}

/// Brings up the pages of tabs on which a control stands.
void MostrarSuPagina(QWidget* control) {
    for (QWidget* hijo = control; hijo != nullptr; hijo = hijo->parentWidget()) {
        for (QWidget* padre = hijo->parentWidget(); padre != nullptr; padre = padre->parentWidget()) {
            auto* paginas = qobject_cast<QTabWidget*>(padre);
            if (paginas != nullptr && paginas->indexOf(hijo) >= 0) paginas->setCurrentWidget(hijo);
        }
    }
}

void Retomar(QWidget* control) {
    constexpr int pausa = 20;  // ms, while a button of the mouse is down
    if (QApplication::mouseButtons() != Qt::NoButton) {
        QTimer::singleShot(pausa, control, [control] { Retomar(control); });
        return;
    }
    QWidget* actual = QApplication::focusWidget();
    if (actual == control || control->isAncestorOf(actual)) return;  // a cell of it is being edited
    EntradaJuzgada* otra = Juzgada(actual);
    if (otra != nullptr && !otra->Motivo().isEmpty()) return;  // two refused ones would fight for it
    if (control->isVisible() && control->isActiveWindow() && !Juzgada(control)->Motivo().isEmpty())
        Juzgada(control)->Reclamar();
}

}  // namespace

bool EntradasEnOrden(QWidget* ventana) {
    const QList<QWidget*> hijos = ventana->findChildren<QWidget*>();
    // One that ends may take others away: the tip that is going out when it says its own.
    const QList<QPointer<QWidget>> controles(hijos.begin(), hijos.end());
    QWidget* primera = nullptr;
    for (const QPointer<QWidget>& control : controles) {
        EntradaJuzgada* entrada = Juzgada(control);
        if (entrada == nullptr || control->isHidden() || !control->isEnabled()) continue;
        entrada->Terminar();
        if (primera == nullptr && !entrada->Motivo().isEmpty()) primera = control;
    }
    if (primera == nullptr) return true;
    MostrarSuPagina(primera);
    Juzgada(primera)->Reclamar();
    return false;
}

bool SeEscribeEn(QWidget* ventana) {
    const QWidget* foco = ventana->focusWidget();
    const QList<QWidget*> controles = ventana->findChildren<QWidget*>();
    return std::any_of(controles.begin(), controles.end(), [foco](QWidget* control) {
        const EntradaJuzgada* entrada = Juzgada(control);
        if (entrada == nullptr) return false;
        // A table that has the keyboard is written in only while a cell of it is edited.
        const bool dentro = control == foco ? qobject_cast<QAbstractItemView*>(control) == nullptr
                                            : control->isAncestorOf(foco);
        return dentro || !entrada->Motivo().isEmpty();
    });
}

void RetenerFoco(QWidget* control, const QFocusEvent& evento) {
    const Qt::FocusReason razon = evento.reason();
    if (razon == Qt::ActiveWindowFocusReason || razon == Qt::PopupFocusReason) return;
    if (Juzgada(control)->Motivo().isEmpty()) return;
    QTimer::singleShot(0, control, [control] { Retomar(control); });
}

void DecirMotivo(QWidget* control, const QRect& lugar, const QString& motivo) {
    QToolTip::showText(control->mapToGlobal(lugar.bottomLeft()), motivo.toHtmlEscaped(), control);
}

QColor FondoDeRechazo(const QPalette& paleta) {
    const QColor base = paleta.color(QPalette::Base);
    const QColor rojo(220, 50, 47);
    const auto mezcla = [](int de, int a) { return (3 * de + a) / 4; };
    return {mezcla(base.red(), rojo.red()), mezcla(base.green(), rojo.green()),
            mezcla(base.blue(), rojo.blue())};
}

}  // namespace trabex::programa::qt
