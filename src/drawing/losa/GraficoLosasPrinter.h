#pragma once

#include "drawing/GeneralImpresion.h"
#include "drawing/losa/GraficoLosa.h"

namespace trabex::dibujo::losa {

/// Draws the sheet of `VistaActual` on a page: the same routines as on the screen, with the paper's style,
/// and the zoom and pan that the sheet has on the screen. `pantalla` is not changed.
void GuardeGraficos1(Lienzo& pagina, const HojaLosa& pantalla, const losas::LosaCalculada& losa,
                     const DatosDePagina& datos);

}  // namespace trabex::dibujo::losa
