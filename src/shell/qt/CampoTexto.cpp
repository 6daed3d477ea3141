#include "shell/qt/CampoTexto.h"

namespace trabex::programa::qt {

QString MotivoDeLargo(const QString& texto, int largo) {
    return texto.size() <= largo ? QString() : QString("No caben más de %1 letras.").arg(largo);
}

CampoTexto::CampoTexto(int largo, QWidget* padre) : CampoJuzgado(padre), largo_(largo) {
    connect(this, &QLineEdit::textChanged, this, [this](const QString& texto) {
        const bool estaba = Marcado();
        Marcar();
        if (Motivo().isEmpty()) cabia_ = texto;
        if (Marcado() && !estaba) DecirMotivo(this, rect(), Motivo());
    });
}

CampoParrafo::CampoParrafo(int largo, QWidget* padre) : QPlainTextEdit(padre), largo_(largo) {
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        QPalette paleta;
        if (!Motivo().isEmpty()) paleta.setColor(QPalette::Base, FondoDeRechazo(paleta));
        setPalette(paleta);
        setToolTip(Motivo());
        if (!Motivo().isEmpty()) DecirMotivo(this, cursorRect(), Motivo());
    });
}

void CampoParrafo::Reclamar() {
    setFocus();
    DecirMotivo(this, cursorRect(), Motivo());
}

void CampoParrafo::focusOutEvent(QFocusEvent* evento) {
    QPlainTextEdit::focusOutEvent(evento);
    RetenerFoco(this, *evento);
}

}  // namespace trabex::programa::qt
