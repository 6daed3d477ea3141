#pragma once

#include "drawing/Lienzo.h"
#include "drawing/losa/EstiloHoja.h"
#include "drawing/losa/HojaLosa.h"
#include "slab/ValoresLosa.h"

namespace trabex::dibujo::losa {

/// The diagrams of factored shears and moments with their largest values, and the factored reactions.
void DibujeFuerzas(Lienzo& lienzo, HojaLosa& hoja, const losas::LosaCalculada& losa,
                   const EstiloHoja& estilo);

}  // namespace trabex::dibujo::losa
