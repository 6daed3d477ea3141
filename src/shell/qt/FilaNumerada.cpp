#include "shell/qt/FilaNumerada.h"

#include <QApplication>

namespace trabex::programa::qt {

int FilaNumerada::Ancho(const QFontMetrics& letra) {
    return letra.horizontalAdvance("00000");
}

void FilaNumerada::paint(QPainter* pintor, const QStyleOptionViewItem& opcion,
                         const QModelIndex& indice) const {
    QStyleOptionViewItem numero(opcion);
    initStyleOption(&numero, indice);
    numero.rect.setWidth(Ancho(opcion.fontMetrics));
    numero.text = QString::number(indice.row() + 1);
    numero.displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
    numero.icon = {};
    numero.features &= ~QStyleOptionViewItem::HasDecoration;
    numero.state &= ~QStyle::State_HasFocus;
    const QStyle* estilo = opcion.widget != nullptr ? opcion.widget->style() : QApplication::style();
    estilo->drawControl(QStyle::CE_ItemViewItem, &numero, pintor, opcion.widget);
    QStyleOptionViewItem nombre(opcion);
    nombre.rect.setLeft(numero.rect.right() + 1);
    QStyledItemDelegate::paint(pintor, nombre, indice);
}

QSize FilaNumerada::sizeHint(const QStyleOptionViewItem& opcion, const QModelIndex& indice) const {
    return QStyledItemDelegate::sizeHint(opcion, indice) + QSize(Ancho(opcion.fontMetrics), 0);
}

}  // namespace trabex::programa::qt
