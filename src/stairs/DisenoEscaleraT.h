#pragma once

#include "base/RefuerzoEscalera.h"
#include "base/VigilanciaFlotante.h"
#include "stairs/DatosEscaleraT.h"
#include "stairs/ResultadosEscaleraT.h"

namespace trabex::escaleras {

/// Flexural steel of a section of the stair for a signed service moment M, kgf·m; width and height in m. As
/// RefuerzoFlexion finds it for Mu = |M|·FS/FiMomento.
inline AceroCaras CalculeRefuerzoEscalera(double M, double Ancho, double Alto,
                                          const DatosGenerales& generales, const Pasos& pasos = {}) {
    return RefuerzoEscalera(M, Ancho, Alto, generales, pasos);
}

/// Stirrups of a station of the flight.
struct EstribosTramo {
    double Separacion = 0;      ///< cm
    double AsLongitudinal = 0;  ///< cm² on each face
};

/// Stirrups and longitudinal steel of the flight for the service shear (kgf) and torsion (kgf·m) of a
/// station, by SeparacionPorArea; X is the distance in plan at which the caller stands, m.
///
/// The torsion is taken as building up along the sloping length, as a moment times a length, less a share of
/// the horizontal moment over a quarter of the landing's arc:
///   Tu = |(L − X)/cos α · FS·Torsor| − |MomentoHorizontal/2 · (B/2)·2π/4|.
/// The bar is 3/8", or 1/2" where 3/8" would stand closer than 10 cm. `Area` (cm² of one leg) is written only
/// where the section needs torsion steel: elsewhere the bar of the station before it stands. The spacing is
/// at most (x1 + y1)/4 and 30 cm, and keeps its fraction. Longitudinal steel, half of it on each face:
///   Al = 2·A·(x1 + y1)/s (ACI 318-83, 11.6.9.3), with A = 0.71 cm² whichever bar was chosen.
EstribosTramo CalculeEstribos(double Corte, double Torsor, const EstaticaEscaleraT& estatica, double X,
                              const DatosEscaleraT& escalera, const DatosGenerales& generales, double& Area,
                              const Pasos& pasos = {});

/// Steel of a station of the flight for its envelope and its lateral moment: each face keeps the greater of
/// its two demands.
void DisenarFlexionTramo(const DatosEscaleraT& escalera, const DatosGenerales& generales, const Pasos& pasos,
                         EscaleraTramoPunto& punto);

/// Steel and shear check of a station of the landing, for the total load alone. The lateral moment enters
/// with its sign, unlike in the flight.
///
/// The in-plane shear stress of the strip of depth B, FS·|CorteY|/(0.85·Hd·(B − D8)), stands against
/// 0.53·√F'c, both in kgf/cm² (ACI 318-83, 11.3.1.1).
void DisenarDescanso(const DatosEscaleraT& escalera, const DatosGenerales& generales, const Pasos& pasos,
                     EscaleraDescansoPunto& punto);

}  // namespace trabex::escaleras
