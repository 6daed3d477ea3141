#pragma once

#include "drawing/Lienzo.h"
#include "drawing/losa/EstiloHoja.h"
#include "drawing/losa/HojaLosa.h"
#include "slab/ValoresLosa.h"

namespace trabex::dibujo::losa {

/// The slab with its dimension chain, each axis led down to it.
void DibujeGeometria(Lienzo& lienzo, HojaLosa& hoja, const losas::LosaCalculada& losa,
                     const EstiloHoja& estilo);

}  // namespace trabex::dibujo::losa
