#pragma once

#include <QHeaderView>
#include <vector>

namespace trabex::programa::qt {

/// A title over neighbouring columns of a table, from 0.
struct GrupoDeColumnas {
    int Primera;
    int Ultima;
    QString Titulo;
};

/// The heading of a table's columns, with titles over groups of them above their own.
class EncabezadoAgrupado : public QHeaderView {
  public:
    /// Takes the place of the table's heading.
    EncabezadoAgrupado(std::vector<GrupoDeColumnas> grupos, QWidget* padre);

    /// The group that a column stands in; none: null.
    const GrupoDeColumnas* GrupoDe(int columna) const;

  protected:
    QSize sectionSizeFromContents(int columna) const override;
    void paintSection(QPainter* pintor, const QRect& lugar, int columna) const override;

  private:
    int AltoDeGrupo() const { return fontMetrics().height() + 6; }

    std::vector<GrupoDeColumnas> grupos_;
};

}  // namespace trabex::programa::qt
