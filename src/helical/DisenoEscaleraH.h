#pragma once

#include <cstdint>

#include "base/DatosGenerales.h"
#include "helical/DatosEscaleraH.h"

namespace trabex::helices {

/// Stirrups of a station.
struct EstribosHelice {
    double Barra = 0;             ///< one leg, cm²: 0.71 or 1.27
    std::int16_t Separacion = 0;  ///< cm
    double Longitudinal = 0;      ///< longitudinal steel for torsion, cm²
};

/// Stirrups and longitudinal steel for a service shear (kgf) and the area of the torsion diagram (ACI 318-83
/// and its like, with a fixed reduction factor of 0.85); width and height in m.
///
/// The spacing is a whole number. A spacing under 8 cm is worked out once more with the larger bar, and that
/// result stands. A spacing of 0 raises a division by zero.
EstribosHelice EstribosEscalera(double Cortante, double Torsion, double Ancho, double Alto,
                                const DatosGenerales& generales);

/// Minimum flexural steel of the flight, cm²: AceroMinimoDeLosa of one that is wider than deep,
/// AceroMinimoDeViga otherwise.
double AceroMinimo(const DatosEscaleraH& escalera, const DatosGenerales& generales);

}  // namespace trabex::helices
