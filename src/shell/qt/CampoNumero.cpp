#include "shell/qt/CampoNumero.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include "shell/qt/ComunVentanas.h"

namespace trabex::programa::qt {

CampoNumero::CampoNumero(const ClaseNumero& clase, const Separadores& separadores, QWidget* padre)
    : QLineEdit(padre), clase_(clase), separadores_(separadores) {
    setAlignment(Qt::AlignRight);
    setFixedWidth(110);
    connect(this, &QLineEdit::textEdited, this, [this] { Juzgar(); });  // comes before the other
    connect(this, &QLineEdit::textChanged, this, [this] { Juzgar(); });
    connect(this, &QLineEdit::returnPressed, this, [this] { Terminar(); });
}

void CampoNumero::Juzgar() {
    const NumeroJuzgado juzgado = JuzgarNumero(S(text()), clase_, separadores_);
    motivo_ = Q(juzgado.Motivo);
    valor_ = juzgado.Valor.value_or(entrado_);
    if (marcado_) Marcar();
}

void CampoNumero::PonerValor(double valor) {
    setText(Q(NumeroParaEditar(valor, clase_.Decimales, separadores_)));
    valor_ = entrado_ = valor;  // with all its decimals, unless another is typed
    motivo_.clear();
    Marcar();
}

void CampoNumero::Marcar() {
    const bool malo = !motivo_.isEmpty();
    if (malo && !marcado_) ayuda_ = toolTip();
    if (malo || marcado_) setToolTip(malo ? motivo_ : ayuda_);
    marcado_ = malo;
    QPalette paleta;
    if (malo) paleta.setColor(QPalette::Base, FondoDeRechazo(palette()));
    setPalette(paleta);
}

void CampoNumero::Terminar() {
    if (!motivo_.isEmpty()) {
        Marcar();
        DecirMotivo(this, rect(), motivo_);
        return;
    }
    if (entrando_ || valor_ == entrado_) return;
    entrado_ = valor_;
    entrando_ = true;
    if (alEntrar_) alEntrar_(valor_);
    entrando_ = false;
}

void CampoNumero::Reclamar() {
    setFocus();
    selectAll();
    Marcar();
    DecirMotivo(this, rect(), motivo_);
}

/// Whichever way the focus comes, typing replaces what stands.
/// At once, so that no key comes between: one typed before would be lost with the next. A click puts the
/// cursor after it gives the focus, so then the selection waits for the button to come up.
void CampoNumero::focusInEvent(QFocusEvent* evento) {
    QLineEdit::focusInEvent(evento);
    seleccionarAlSoltar_ = evento->reason() == Qt::MouseFocusReason;
    if (!seleccionarAlSoltar_ && evento->reason() != Qt::PopupFocusReason) selectAll();
}

/// Escape gives up what is refused, not the window.
void CampoNumero::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() != Qt::Key_Escape || motivo_.isEmpty()) return QLineEdit::keyPressEvent(evento);
    PonerValor(entrado_);
    selectAll();
}

void CampoNumero::focusOutEvent(QFocusEvent* evento) {
    QLineEdit::focusOutEvent(evento);
    if (evento->reason() == Qt::PopupFocusReason) return;
    if (evento->reason() != Qt::ActiveWindowFocusReason) Terminar();
    RetenerFoco(this, *evento);
}

bool CampoNumero::focusNextPrevChild(bool adelante) {
    if (motivo_.isEmpty()) return QLineEdit::focusNextPrevChild(adelante);
    Reclamar();
    return true;
}

void CampoNumero::mouseReleaseEvent(QMouseEvent* evento) {
    QLineEdit::mouseReleaseEvent(evento);
    if (seleccionarAlSoltar_ && !hasSelectedText()) selectAll();
    seleccionarAlSoltar_ = false;
}

}  // namespace trabex::programa::qt
