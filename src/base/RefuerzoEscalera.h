#pragma once

#include "base/DatosGenerales.h"
#include "base/RefuerzoFlexion.h"

namespace trabex {

/// Flexural steel of a stair's section, straight or helical, for a service moment M in kgf·m; width and
/// height in m. The moment is factored by FS and divided by FiMomento.
AceroCaras RefuerzoEscalera(double M, double Ancho, double Alto, const DatosGenerales& generales,
                            const Pasos& pasos = {});

}  // namespace trabex
