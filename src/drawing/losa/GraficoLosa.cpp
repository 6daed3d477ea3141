#include "drawing/losa/GraficoLosa.h"

#include "drawing/losa/GraficoDiseno.h"
#include "drawing/losa/GraficoFuerzas.h"
#include "drawing/losa/GraficoGeometria.h"

namespace trabex::dibujo::losa {

void RedibujeVista(Lienzo& lienzo, HojaLosa& hoja, const losas::LosaCalculada& losa,
                   const EstiloHoja& estilo) {
    switch (hoja.VistaActual) {
        case VistaGeometria:
            return DibujeGeometria(lienzo, hoja, losa, estilo);
        case VistaFuerzas:
            return DibujeFuerzas(lienzo, hoja, losa, estilo);
        case VistaDiseno:
            return DibujeDiseno(lienzo, hoja, losa, estilo);
        default:
            return;
    }
}

}  // namespace trabex::dibujo::losa
