#include "shell/qt/CampoJuzgado.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace trabex::programa::qt {

void CampoJuzgado::Marcar() {
    const QString motivo = Motivo();
    const bool malo = !motivo.isEmpty();
    if (malo && !marcado_) ayuda_ = toolTip();
    if (malo || marcado_) setToolTip(malo ? motivo : ayuda_);
    marcado_ = malo;
    QPalette paleta;
    if (malo) paleta.setColor(QPalette::Base, FondoDeRechazo(paleta));
    setPalette(paleta);
}

void CampoJuzgado::Terminar() {
    if (Motivo().isEmpty()) return Tomar();
    Marcar();
    DecirMotivo(this, rect(), Motivo());
}

void CampoJuzgado::Reclamar() {
    setFocus();
    selectAll();
    Marcar();
    DecirMotivo(this, rect(), Motivo());
}

/// At once, so that no key comes between: one typed before would be lost with the next. A click puts the
/// cursor after it gives the focus, so then the selection waits for the button to come up.
void CampoJuzgado::focusInEvent(QFocusEvent* evento) {
    QLineEdit::focusInEvent(evento);
    seleccionarAlSoltar_ = evento->reason() == Qt::MouseFocusReason;
    if (!seleccionarAlSoltar_ && evento->reason() != Qt::PopupFocusReason) selectAll();
}

void CampoJuzgado::focusOutEvent(QFocusEvent* evento) {
    QLineEdit::focusOutEvent(evento);
    if (evento->reason() == Qt::PopupFocusReason || evento->reason() == Qt::ActiveWindowFocusReason) return;
    Terminar();
    RetenerFoco(this, *evento);
}

void CampoJuzgado::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() != Qt::Key_Escape || Motivo().isEmpty()) return QLineEdit::keyPressEvent(evento);
    Volver();
    selectAll();
}

bool CampoJuzgado::focusNextPrevChild(bool adelante) {
    if (Motivo().isEmpty()) return QLineEdit::focusNextPrevChild(adelante);
    Reclamar();
    return true;
}

void CampoJuzgado::mouseReleaseEvent(QMouseEvent* evento) {
    QLineEdit::mouseReleaseEvent(evento);
    if (seleccionarAlSoltar_ && !hasSelectedText()) selectAll();
    seleccionarAlSoltar_ = false;
}

}  // namespace trabex::programa::qt
