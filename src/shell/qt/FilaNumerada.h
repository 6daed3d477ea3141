#pragma once

#include <QStyledItemDelegate>

namespace trabex::programa::qt {

/// Draws the rows of a list with their numbers before them, from 1.
class FilaNumerada : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// What the numbers take of a row's width.
    static int Ancho(const QFontMetrics& letra);

    void paint(QPainter* pintor, const QStyleOptionViewItem& opcion,
               const QModelIndex& indice) const override;
    QSize sizeHint(const QStyleOptionViewItem& opcion, const QModelIndex& indice) const override;
};

}  // namespace trabex::programa::qt
