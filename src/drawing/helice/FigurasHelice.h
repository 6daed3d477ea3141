#pragma once

#include "base/Formatos.h"
#include "drawing/Plano.h"
#include "drawing/helice/CuerpoHelice.h"
#include "drawing/helice/HojaHelice.h"

namespace trabex::dibujo::helice {

/// A place of the canvas, m from its origin, y up.
struct Sitio {
    double x = 0;
    double y = 0;
};

/// The flight from above about `centro`: its edges and steps, the axis with an arrow that climbs, the centre.
void DibujePlanta(const Plano& plano, const CuerpoHelice& cuerpo, Sitio centro);

/// Radius, development and width written into a plan, in the current font.
void AcotePlanta(Plano& plano, const CuerpoHelice& cuerpo, Sitio centro,
                 const helices::DatosEscaleraH& escalera, const Separadores& numeros);

/// The flight in perspective, its picture `parte` of its own size. What other parts hide of both edges is
/// dotted.
void DibujePerspectiva(const Plano& plano, const CuerpoHelice& cuerpo, Sitio centro, double parte,
                       const Perspectiva& perspectiva);

}  // namespace trabex::dibujo::helice
