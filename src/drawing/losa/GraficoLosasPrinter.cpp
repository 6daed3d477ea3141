#include "drawing/losa/GraficoLosasPrinter.h"

namespace trabex::dibujo::losa {

void GuardeGraficos1(Lienzo& pagina, const HojaLosa& pantalla, const losas::LosaCalculada& losa,
                     const DatosDePagina& datos) {
    HojaLosa hoja = pantalla;
    RedibujeVista(pagina, hoja, losa, HojaEnPapel);
    DibujePagina(pagina, datos);
}

}  // namespace trabex::dibujo::losa
