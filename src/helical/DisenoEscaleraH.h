#pragma once

#include <cstdint>

#include "base/DatosGenerales.h"
#include "base/VigilanciaFlotante.h"
#include "helical/DatosEscaleraH.h"

namespace trabex::helices {

/// Stirrups of a station.
struct EstribosHelice {
    double Barra = 0;             ///< one leg, cm²: 0.71 or 1.27
    std::int16_t Separacion = 0;  ///< cm
    double Longitudinal = 0;      ///< longitudinal steel for torsion, cm²
};

/// Stirrups and longitudinal steel for a service shear (kgf) and the area of the torsion diagram, taken as a
/// torsion in kgf·m, by SeparacionPorArea with Tu = FS·|Torsion| and V = FS·|Cortante|; width and height in
/// m.
///
/// The spacing is a whole number, at most (x1 + y1)/4 and 30 cm. A spacing under 8 cm is worked out once more
/// with the 1/2" bar, and that result stands. Longitudinal steel: 2·A·(x1 + y1)/s (ACI 318-83, 11.6.9.3), so
/// that a spacing of 0 raises a division by zero.
EstribosHelice EstribosEscalera(double Cortante, double Torsion, double Ancho, double Alto,
                                const DatosGenerales& generales, const Pasos& pasos = {});

/// Minimum flexural steel of the flight, cm²: AceroMinimoDeLosa of one that is wider than deep,
/// AceroMinimoDeViga otherwise.
double AceroMinimo(const DatosEscaleraH& escalera, const DatosGenerales& generales);

}  // namespace trabex::helices
