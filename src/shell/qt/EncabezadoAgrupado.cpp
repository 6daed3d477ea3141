#include "shell/qt/EncabezadoAgrupado.h"

#include <QPainter>
#include <QStyleOptionHeader>
#include <algorithm>
#include <utility>

namespace trabex::programa::qt {

EncabezadoAgrupado::EncabezadoAgrupado(std::vector<GrupoDeColumnas> grupos, QWidget* padre)
    : QHeaderView(Qt::Horizontal, padre), grupos_(std::move(grupos)) {
    setSectionsClickable(true);
    setHighlightSections(false);
    setSectionResizeMode(Stretch);
}

const GrupoDeColumnas* EncabezadoAgrupado::GrupoDe(int columna) const {
    const auto hallado = std::find_if(grupos_.begin(), grupos_.end(), [&](const GrupoDeColumnas& grupo) {
        return grupo.Primera <= columna && columna <= grupo.Ultima;
    });
    return hallado == grupos_.end() ? nullptr : &*hallado;
}

QSize EncabezadoAgrupado::sectionSizeFromContents(int columna) const {
    const QSize propio = QHeaderView::sectionSizeFromContents(columna);
    return GrupoDe(columna) == nullptr ? propio : propio + QSize(0, AltoDeGrupo());
}

/// Each column paints its part of the group's title, which lies across all of them.
void EncabezadoAgrupado::paintSection(QPainter* pintor, const QRect& lugar, int columna) const {
    const GrupoDeColumnas* grupo = GrupoDe(columna);
    if (grupo == nullptr) return QHeaderView::paintSection(pintor, lugar, columna);
    QHeaderView::paintSection(pintor, lugar.adjusted(0, AltoDeGrupo(), 0, 0), columna);
    QStyleOptionHeader opcion;
    initStyleOption(&opcion);
    opcion.text = grupo->Titulo;
    opcion.textAlignment = Qt::AlignCenter;
    const int desde = sectionViewportPosition(grupo->Primera);
    const int hasta = sectionViewportPosition(grupo->Ultima) + sectionSize(grupo->Ultima);
    opcion.rect = QRect(desde, lugar.top(), hasta - desde, AltoDeGrupo());
    pintor->save();
    pintor->setClipRect(lugar);
    style()->drawControl(QStyle::CE_Header, &opcion, pintor, this);
    pintor->restore();
}

}  // namespace trabex::programa::qt
