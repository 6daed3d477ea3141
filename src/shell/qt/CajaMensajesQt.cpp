#include "shell/qt/CajaMensajesQt.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "shell/qt/ComunVentanas.h"
#include "shell/qt/Iconos.h"

namespace trabex::programa::qt {

namespace {

constexpr int TwipsPorPixel = 15;  // at 96 dots an inch
constexpr int LadoFigura = 48;
constexpr int PuntosEncabezado = 14;
constexpr int PuntosTexto = 10;
constexpr std::array<const char*, 5> Figuras{"caja-informacion", "caja-advertencia", "caja-pregunta",
                                             "caja-error", "caja-alto"};

int EnTwips(int pixeles) {
    return pixeles * TwipsPorPixel;
}
int EnPixeles(int twips) {
    return twips / TwipsPorPixel;
}

QFont FuenteDe(const QWidget& ventana, int puntos, bool negrita) {
    QFont fuente = ventana.font();
    fuente.setPointSize(puntos);
    fuente.setBold(negrita);
    return fuente;
}

int AnchoDe(const QString& texto, const QFont& fuente) {
    const QFontMetrics metrica(fuente);
    int ancho = 0;
    for (const QString& linea : texto.split('\n')) ancho = std::max(ancho, metrica.horizontalAdvance(linea));
    return ancho;
}

/// Lets words that are wider than the box, such as paths, break at any letter.
QString ConCortes(const QString& texto, const QFont& fuente, int ancho) {
    constexpr QChar corte(0x200B);
    const QFontMetrics metrica(fuente);
    QString salida;
    for (qsizetype i = 0; i < texto.size();) {
        qsizetype fin = i;
        while (fin < texto.size() && !texto[fin].isSpace()) ++fin;
        const QString palabra = texto.mid(i, fin - i);
        const bool larga = metrica.horizontalAdvance(palabra) > ancho;
        for (const QChar letra : palabra) {
            salida += letra;
            if (larga && !letra.isHighSurrogate()) salida += corte;
        }
        if (fin < texto.size()) salida += texto[fin];
        i = fin + 1;
    }
    return salida;
}

}  // namespace

VentanaMensaje::VentanaMensaje(const Mensaje& mensaje, QWidget* padre)
    : QDialog(padre), disposicion_(DisposicionDe(mensaje.Botones)) {
    setWindowTitle(Q(mensaje.Titulo));
    Armar(mensaje);
    if (const QScreen* pantalla = QGuiApplication::primaryScreen())
        move(pantalla->availableGeometry().center() - rect().center());
}

void VentanaMensaje::Armar(const Mensaje& mensaje) {
    const QFont fuenteEncabezado = FuenteDe(*this, PuntosEncabezado, true);
    const QFont fuenteTexto = FuenteDe(*this, PuntosTexto, false);
    auto* encabezado = new QLabel(Q(mensaje.Encabezado), this);
    encabezado->setFont(fuenteEncabezado);
    auto* texto = new QLabel(this);
    texto->setFont(fuenteTexto);
    texto->setTextFormat(Qt::PlainText);
    texto->setText(ConCortes(Q(mensaje.Texto), fuenteTexto, EnPixeles(AnchoMaximoTexto)));
    texto->setWordWrap(true);
    texto->setTextInteractionFlags(Qt::TextSelectableByMouse);
    texto->setFocusPolicy(Qt::NoFocus);

    const int anchoTexto = AnchoDe(Q(mensaje.Texto), fuenteTexto);
    texto->setMinimumWidth(std::min(anchoTexto + 4, EnPixeles(AnchoMaximoTexto)));
    texto->setMaximumWidth(EnPixeles(AnchoMaximoTexto));
    const int ancho = EnPixeles(AnchoCaja(
        mensaje.Botones, EnTwips(AnchoDe(Q(mensaje.Encabezado), fuenteEncabezado)), EnTwips(anchoTexto)));

    auto* fila = new QHBoxLayout;
    fila->setSpacing(14);
    const bool conFigura = mensaje.Icono != IconoCaja::Ninguno;
    if (conFigura) {
        auto* figura = new QLabel(this);
        figura->setPixmap(Figura(Figuras[static_cast<std::size_t>(mensaje.Icono)], LadoFigura));
        fila->addWidget(figura, 0, Qt::AlignTop);
    }
    fila->addWidget(texto, 1);
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(16, 14, 16, 14);
    columna->setSpacing(12);
    columna->setSizeConstraint(QLayout::SetFixedSize);
    columna->addWidget(encabezado);
    columna->addLayout(fila, 1);
    columna->addSpacing(4);
    PonerBotones(mensaje);
    setMinimumWidth(ancho + (conFigura ? LadoFigura : 0));
    encabezado->setMinimumWidth(ancho - 32);
    adjustSize();
}

void VentanaMensaje::PonerBotones(const Mensaje& mensaje) {
    auto* fila = new QHBoxLayout;
    fila->addStretch(1);
    for (std::int16_t b = 0; b < disposicion_.Cuantos; ++b) {
        auto* boton = new QPushButton(disposicion_.Botones[b].Texto, this);
        boton->setMinimumWidth(96);
        boton->setAutoDefault(true);
        connect(boton, &QPushButton::clicked, this, [this, b] { Responder(b); });
        fila->addWidget(boton);
        if (b == mensaje.PorDefecto) {
            boton->setDefault(true);
            boton->setFocus();
        }
    }
    fila->addStretch(1);
    static_cast<QVBoxLayout*>(layout())->addLayout(fila);
}

void VentanaMensaje::Responder(std::int16_t boton) {
    respuesta_ = disposicion_.Botones[boton].Respuesta;
    accept();
}

void VentanaMensaje::keyPressEvent(QKeyEvent* evento) {
    for (std::int16_t b = 0; b < disposicion_.Cuantos; ++b) {
        const QString texto = disposicion_.Botones[b].Texto;
        if (texto.startsWith(evento->text(), Qt::CaseInsensitive) && !evento->text().isEmpty())
            return Responder(b);
    }
    QDialog::keyPressEvent(evento);
}

void VentanaMensaje::reject() {
    if (!disposicion_.Escape) return;
    respuesta_ = *disposicion_.Escape;
    QDialog::reject();
}

std::int16_t CajaMensajesQt::Mostrar(const Mensaje& mensaje) {
    QApplication::setOverrideCursor(Qt::ArrowCursor);
    VentanaMensaje ventana(mensaje, QApplication::activeWindow());
    ventana.exec();
    QApplication::restoreOverrideCursor();
    return ventana.Respuesta();
}

}  // namespace trabex::programa::qt
