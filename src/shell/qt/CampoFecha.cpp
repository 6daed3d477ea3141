#include "shell/qt/CampoFecha.h"

#include <QLocale>

#include "base/Formatos.h"
#include "base/LeerFecha.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::programa::qt {

namespace {

OrdenFecha OrdenLocal() {
    const QString formato = QLocale::system().dateFormat(QLocale::ShortFormat);
    const qsizetype dia = formato.indexOf('d');
    if (formato.indexOf('y') < dia) return OrdenFecha::AnoMesDia;
    return formato.indexOf('M') < dia ? OrdenFecha::MesDiaAno : OrdenFecha::DiaMesAno;
}

std::optional<Fecha> Leer(const QString& texto) {
    return LeerFecha(S(texto), OrdenLocal(), Hoy());
}

}  // namespace

CampoFecha::CampoFecha(QWidget* padre) : CampoJuzgado(padre), fecha_(Hoy()) {
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (Marcado()) Marcar();
    });
}

void CampoFecha::PonerValor(const Fecha& fecha) {
    fecha_ = fecha;
    setText(Q(FormatoFecha(fecha)));
}

QString CampoFecha::Motivo() const {
    return Leer(text()) ? QString() : "No es una fecha: día, mes y año, como 07/03/2024.";
}

void CampoFecha::Tomar() {
    PonerValor(*Leer(text()));
}

}  // namespace trabex::programa::qt
