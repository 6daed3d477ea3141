#pragma once

#include "drawing/Lienzo.h"
#include "drawing/losa/EstiloHoja.h"
#include "drawing/losa/HojaLosa.h"
#include "slab/ValoresLosa.h"

namespace trabex::dibujo::losa {

/// Draws the sheet of `VistaActual`.
void RedibujeVista(Lienzo& lienzo, HojaLosa& hoja, const losas::LosaCalculada& losa,
                   const EstiloHoja& estilo = HojaEnPantalla);

}  // namespace trabex::dibujo::losa
