#include "shell/qt/CampoNumero.h"

#include "shell/qt/ComunVentanas.h"

namespace trabex::programa::qt {

CampoNumero::CampoNumero(const ClaseNumero& clase, const Separadores& separadores, QWidget* padre)
    : CampoJuzgado(padre), clase_(clase), separadores_(separadores) {
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
    if (Marcado()) Marcar();
}

void CampoNumero::PonerValor(double valor) {
    setText(Q(NumeroParaEditar(valor, clase_.Decimales, separadores_)));
    valor_ = entrado_ = valor;  // with all its decimals, unless another is typed
    motivo_.clear();
    Marcar();
}

void CampoNumero::Tomar() {
    if (entrando_ || valor_ == entrado_) return;
    entrado_ = valor_;
    entrando_ = true;
    if (alEntrar_) alEntrar_(valor_);
    entrando_ = false;
}

}  // namespace trabex::programa::qt
