#pragma once

#include "drawing/GeneralImpresion.h"
#include "drawing/Lienzo.h"
#include "drawing/helice/HojaHelice.h"
#include "helical/EscaleraHCalculada.h"

namespace trabex::dibujo::helice {

/// Plan and perspective of a helical stair, its heading and its texts, on a cleared canvas. Results of a
/// calculation that a fault ended are left out. Without width,
/// thickness, radius or development, or with a rise that is no number, the canvas is left cleared.
void RedibujeVista(Lienzo& lienzo, HojaHelice& hoja, const helices::EscaleraHCalculada& escalera,
                   const EstiloHelice& estilo = HeliceEnPantalla);

/// The drawing on a page, with zoom, pan and rotation of the screen, and the page's furniture around it.
void DibujeEnPapel(Lienzo& pagina, const HojaHelice& pantalla, const helices::EscaleraHCalculada& escalera,
                   const DatosDePagina& datos);

/// The sketch beside the fields of an entry window: plan with its dimensions, and the flight seen from above
/// whatever the rotation of `hoja`. Any values may have been typed.
void DibujeBoceto(Lienzo& lienzo, HojaHelice& hoja, const helices::DatosEscaleraH& escalera);

}  // namespace trabex::dibujo::helice
