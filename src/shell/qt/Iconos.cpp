#include "shell/qt/Iconos.h"

#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

static void CargarRecursos() {
    Q_INIT_RESOURCE(iconos);
}

namespace trabex::programa::qt {

namespace {

QByteArray Texto(const QString& nombre) {
    CargarRecursos();
    QFile archivo(":/iconos/" + nombre + ".svg");
    return archivo.open(QIODevice::ReadOnly) ? archivo.readAll() : QByteArray();
}

QPixmap Dibujar(const QByteArray& svg, int lado) {
    QPixmap mapa(lado, lado);
    mapa.fill(Qt::transparent);
    QPainter pintor(&mapa);
    QSvgRenderer(svg).render(&pintor);
    return mapa;
}

QByteArray EnColor(QByteArray svg, const QColor& color) {
    return svg.replace("#000", color.name().toLatin1());
}

}  // namespace

QIcon Icono(const QString& nombre) {
    const QByteArray svg = Texto(nombre);
    const QPalette paleta = QGuiApplication::palette();
    QIcon icono;
    for (const int lado : {16, 24, 32, 48}) {
        icono.addPixmap(Dibujar(EnColor(svg, paleta.color(QPalette::ButtonText)), lado));
        icono.addPixmap(Dibujar(EnColor(svg, paleta.color(QPalette::Disabled, QPalette::ButtonText)), lado),
                        QIcon::Disabled);
    }
    return icono;
}

QPixmap Figura(const QString& nombre, int lado) {
    return Dibujar(Texto(nombre), lado);
}

}  // namespace trabex::programa::qt
