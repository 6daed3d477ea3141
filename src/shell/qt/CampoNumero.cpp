#include "shell/qt/CampoNumero.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QRegularExpression>
#include <cmath>

#include "shell/qt/ComunVentanas.h"

namespace trabex::programa::qt {

std::optional<double> NumeroDe(const QString& texto, const ClaseNumero& clase) {
    if (texto.trimmed().isEmpty()) return 0;
    const auto numero = LeerNumero(S(texto));
    if (!numero || *numero < clase.Minimo || *numero > clase.Maximo) return std::nullopt;
    if (clase.Entero && *numero != std::trunc(*numero)) return std::nullopt;
    return numero;
}

QValidator::State ValidadorNumero::validate(QString& texto, int&) const {
    static const QRegularExpression entero("^-?\\d{0,10}$");
    static const QRegularExpression decimal("^-?\\d{0,10}([.,]\\d{0,10})?$");
    const QString limpio = texto.trimmed();
    if (!(clase_.Entero ? entero : decimal).match(limpio).hasMatch()) return Invalid;
    if (clase_.Minimo >= 0 && limpio.startsWith('-')) return Invalid;
    if (limpio == "-" || limpio == "." || limpio == ",") return Intermediate;
    return NumeroDe(limpio, clase_) ? Acceptable : Intermediate;  // a digit that is lost in silence is worse
}

CampoNumero::CampoNumero(const ClaseNumero& clase, const Separadores& separadores, QWidget* padre)
    : QLineEdit(padre), clase_(clase), separadores_(separadores) {
    setAlignment(Qt::AlignRight);
    setFixedWidth(110);
    setValidator(new ValidadorNumero(clase, this));
}

double CampoNumero::Valor() const {
    return NumeroDe(text(), clase_).value_or(0);
}

void CampoNumero::PonerValor(double valor) {
    setText(Q(NumeroParaEditar(valor, clase_.Decimales, separadores_)));
}

/// Whichever way the focus comes, typing replaces what stands.
/// At once, so that no key comes between: one typed before would be lost with the next. A click puts the
/// cursor after it gives the focus, so then the selection waits for the button to come up.
void CampoNumero::focusInEvent(QFocusEvent* evento) {
    QLineEdit::focusInEvent(evento);
    seleccionarAlSoltar_ = evento->reason() == Qt::MouseFocusReason;
    if (!seleccionarAlSoltar_ && evento->reason() != Qt::PopupFocusReason) selectAll();
}

void CampoNumero::mouseReleaseEvent(QMouseEvent* evento) {
    QLineEdit::mouseReleaseEvent(evento);
    if (seleccionarAlSoltar_ && !hasSelectedText()) selectAll();
    seleccionarAlSoltar_ = false;
}

}  // namespace trabex::programa::qt
