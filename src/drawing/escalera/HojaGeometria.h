#pragma once

#include "drawing/Lienzo.h"
#include "drawing/escalera/HojaEscalera.h"

namespace trabex::dibujo::escalera {

/// Plan and section with their dimensions, on a cleared canvas. Throws as PeldanosDe does, after the plan.
void DibujeGeometria(Lienzo& lienzo, HojaEscalera& hoja, const escaleras::EscaleraCalculada& escalera,
                     const EstiloEscalera& estilo);

}  // namespace trabex::dibujo::escalera
