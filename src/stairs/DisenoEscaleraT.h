#pragma once

#include "base/RefuerzoEscalera.h"
#include "stairs/DatosEscaleraT.h"
#include "stairs/ResultadosEscaleraT.h"

namespace trabex::escaleras {

/// Flexural steel of a section of the stair for a signed service moment M, kgf·m; width and height in m.
inline AceroCaras CalculeRefuerzoEscalera(double M, double Ancho, double Alto,
                                          const DatosGenerales& generales) {
    return RefuerzoEscalera(M, Ancho, Alto, generales);
}

/// Stirrups of a station of the flight.
struct EstribosTramo {
    double Separacion = 0;      ///< cm
    double AsLongitudinal = 0;  ///< cm² on each face
};

/// Stirrups and longitudinal steel of the flight for shear and torsion (ACI 318-83, with a
/// fixed reduction factor of 0.85), for the service shear (kgf) and torsion (kgf·m) of a station.
///
/// The torsion is taken as building up along the sloping length, less a share of the horizontal moment; X is
/// the distance in plan at which the caller stands, m. `Area` (cm² of one leg) is written only where the
/// section needs torsion steel: elsewhere the bar of the station before it stands. The spacing keeps its
/// fraction, and the longitudinal steel is that of the smaller bar whichever was chosen.
EstribosTramo CalculeEstribos(double Corte, double Torsor, const EstaticaEscaleraT& estatica, double X,
                              const DatosEscaleraT& escalera, const DatosGenerales& generales, double& Area);

/// Steel of a station of the flight for its envelope and its lateral moment: each face keeps the greater of
/// its two demands.
void DisenarFlexionTramo(const DatosEscaleraT& escalera, const DatosGenerales& generales,
                         EscaleraTramoPunto& punto);

/// Steel and shear check of a station of the landing, for the total load alone. The lateral moment enters
/// with its sign, unlike in the flight.
void DisenarDescanso(const DatosEscaleraT& escalera, const DatosGenerales& generales,
                     EscaleraDescansoPunto& punto);

}  // namespace trabex::escaleras
