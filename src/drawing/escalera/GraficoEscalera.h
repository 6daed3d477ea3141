#pragma once

#include "drawing/GeneralImpresion.h"
#include "drawing/Lienzo.h"
#include "drawing/escalera/HojaEscalera.h"

namespace trabex::dibujo::escalera {

/// Draws the sheet of `VistaActual`; outside 0 to 3, nothing. A stair without length, width or rise leaves
/// the canvas cleared, and one too small for a single step leaves what stands before its steps.
void RedibujeVista(Lienzo& lienzo, HojaEscalera& hoja, const escaleras::EscaleraCalculada& escalera,
                   const EstiloEscalera& estilo = HojaEnPantalla);

/// Draws the sheet of `VistaActual` on a page, with the zoom and pan that it has on the screen.
void GuardeGraficos1(Lienzo& pagina, const HojaEscalera& pantalla,
                     const escaleras::EscaleraCalculada& escalera, const DatosDePagina& datos);

}  // namespace trabex::dibujo::escalera
