#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>
#include <vector>

#include "reports/salidas/qt/Paginador.h"

namespace trabex::salidas::qt {

/// A text of a page, in the units of pages: one line, of the report's own or of a drawing.
struct TextoDePagina {
    QString Texto;
    QRectF Donde;
    const TipoDeLetra* Letra = nullptr;  ///< null: of a drawing

    /// Where a part of it stands.
    QRectF Parte(qsizetype desde, qsizetype cuantas) const;
};

/// The texts of a page, from 0, as they are painted.
std::vector<TextoDePagina> TextosDePagina(const Paginador& paginas, int pagina);

/// Texts as a spreadsheet takes them: those beside one another are one line with tabs between them.
QString EnRenglones(std::vector<TextoDePagina> textos);

}  // namespace trabex::salidas::qt
