#pragma once

#include "base/DatosGenerales.h"
#include "base/RefuerzoFlexion.h"

namespace trabex {

/// Flexural steel of a stair's section, straight or helical, for a service moment M in kgf·m, by what it
/// does; width and height in m. The moment is factored by FS and divided by FiMomento.
AcerosFlexion AcerosDeEscalera(double M, double Ancho, double Alto, const DatosGenerales& generales,
                               const Pasos& pasos = {});

/// The same steel by the face that it stands at.
AceroCaras RefuerzoEscalera(double M, double Ancho, double Alto, const DatosGenerales& generales,
                            const Pasos& pasos = {});

}  // namespace trabex
