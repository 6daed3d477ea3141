#include "drawing/qt/PapelQt.h"

#include <QPainter>

#include "base/ErrorEjecucion.h"
#include "drawing/qt/LienzoQt.h"

namespace trabex {

void ImprimirPaginas(QPagedPaintDevice& papel, const std::vector<std::function<void(Lienzo&)>>& paginas) {
    QPainter pintor;
    if (!pintor.begin(&papel)) throw ErrorEjecucion(CodigoError::ErrorDispositivo);
    bool primera = true;
    for (const auto& dibujar : paginas) {
        if (!primera && !papel.newPage()) throw ErrorEjecucion(CodigoError::ErrorDispositivo);
        primera = false;
        LienzoQt lienzo(pintor, papel.width(), papel.height());
        dibujar(lienzo);
    }
    if (!pintor.end()) throw ErrorEjecucion(CodigoError::ErrorDispositivo);
}

}  // namespace trabex
