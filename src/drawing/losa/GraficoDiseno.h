#pragma once

#include "drawing/Lienzo.h"
#include "drawing/losa/EstiloHoja.h"
#include "drawing/losa/HojaLosa.h"
#include "slab/ValoresLosa.h"

namespace trabex::dibujo::losa {

/// The table of service reactions, solid zones, moments, steel and inflection points under the axes; with
/// `SoloReacciones`, its reactions alone.
void DibujeDiseno(Lienzo& lienzo, HojaLosa& hoja, const losas::LosaCalculada& losa, const EstiloHoja& estilo);

}  // namespace trabex::dibujo::losa
