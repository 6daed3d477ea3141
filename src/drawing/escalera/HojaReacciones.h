#pragma once

#include "drawing/Lienzo.h"
#include "drawing/escalera/HojaEscalera.h"

namespace trabex::dibujo::escalera {

/// Section with what the supports take, on a cleared canvas. Throws as PeldanosDe does, before its figures.
void DibujeReacciones(Lienzo& lienzo, HojaEscalera& hoja, const escaleras::EscaleraCalculada& escalera,
                      const EstiloEscalera& estilo);

}  // namespace trabex::dibujo::escalera
