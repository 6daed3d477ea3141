#pragma once

#include "drawing/Lienzo.h"
#include "drawing/escalera/HojaEscalera.h"

namespace trabex::dibujo::escalera {

/// A section of the upper flight and, below it, the table of forces or of steel, on a cleared canvas. Throw
/// as PeldanosDe does, before their figures.
void DibujeSolicitaciones(Lienzo& lienzo, HojaEscalera& hoja, const escaleras::EscaleraCalculada& escalera,
                          const EstiloEscalera& estilo);
void DibujeDiseno(Lienzo& lienzo, HojaEscalera& hoja, const escaleras::EscaleraCalculada& escalera,
                  const EstiloEscalera& estilo);

}  // namespace trabex::dibujo::escalera
