#pragma once

#include <cstddef>

#include "base/Formatos.h"
#include "drawing/Lienzo.h"
#include "drawing/Visor.h"
#include "slab/Losa.h"

namespace trabex::dibujo::losa {

/// What a sketch marks: the span or the joint in hand, 0 for none.
struct MarcaBoceto {
    std::size_t Tramo = 0;
    std::size_t Junta = 0;
};

/// Sketches of a slab as its data stand while they are typed, before any calculation: spans of length 0,
/// shifts of joints that do not exist yet and missing supports are drawn as far as they make sense. `vista`
/// gives zoom and pan, and takes scale and origin.

/// Section, spans with their lengths, axes, supports and displaced joints.
void DibujeLosaDatos(Lienzo& lienzo, EstadoVista& vista, const losas::Losa& losa, const MarcaBoceto& marca,
                     const Separadores& numeros);
/// Spans with their uniform and point loads.
void DibujeLosaCargas(Lienzo& lienzo, EstadoVista& vista, const losas::Losa& losa, const MarcaBoceto& marca,
                      const Separadores& numeros);
/// The slab as it would be exported: section, spans and axes, without marks.
void DibujeLosaExportar(Lienzo& lienzo, EstadoVista& vista, const losas::Losa& losa,
                        const Separadores& numeros);

}  // namespace trabex::dibujo::losa
