#pragma once

#include <cstddef>

#include "base/VigilanciaFlotante.h"
#include "stairs/DatosEscaleraT.h"
#include "stairs/ResultadosEscaleraT.h"

namespace trabex::escaleras {

/// Last station of the flight, which stands at its support; station 0 is the joint with the landing.
inline constexpr std::size_t UltimaEstacion = 10;
/// Last station of the half landing, at its joint with the flight; station 1 is the crown.
inline constexpr std::size_t UltimoDescanso = 7;

/// Plan distance of a station of the flight from the landing, m: the step is added, never multiplied.
double XDeEstacion(const DatosEscaleraT& escalera, std::size_t estacion);

/// Angle of a station of the half landing from its crown, degrees.
int GradosDeDescanso(std::size_t estacion);

/// Forms what one stair has in common at all stations, each value stored in `estatica` as it is found.
///
/// The stair is a bar fixed at both ends: the flight, of plan length L and slope α, and the landing, taken as
/// a half circle of radius B/2. By symmetry two unknowns are left, the moment at the support and the moment
/// at the crown (`MomentoHorizontal`); they make the deformation work least, where
///   EI is the same in flight and landing, and GJ = 2·EI;
///   bending within the plane of the flight or of the landing (`MomentoY`) is rigid, and so are shear and
///   axial force;
///   the moment of the landing's own load is left out of the condition at the crown.
/// Half the stair then works  ∫(MX²/2EI + MT²/2GJ)ds, with MX = E·X·tan α − WT·X²/2 − Wd·B·(X + B/2) and
/// MT = E·sin α·B/2 + MH·cos α in the flight, MX = MH·cos θ and MT = MH·sin θ in the landing. The
/// coefficients are the solution for each load, with k = B/(2·L): m, kgf and kgf·m throughout.
void FormarEstatica(const DatosEscaleraT& escalera, const Pasos& pasos, EstaticaEscaleraT& estatica);

/// Forces of one stair by equilibrium, once its `EstaticaEscaleraT` is formed.
///
/// One flight carries WT along its plan length, the half landing Wd (or WpD) over B. The crown hands over the
/// thrust E = `EmpujeFlexion` and the moment `MomentoHorizontal`; E acts at a lever B/2 from the flight's
/// axis and so gives it axial force, lateral moment and torsion besides its bending.
class EsfuerzosEscaleraT {
  public:
    EsfuerzosEscaleraT(const DatosEscaleraT& escalera, const EstaticaEscaleraT& estatica);

    /// Forces of the flight at X m in plan from the landing, with the envelope of its moments.
    void EnTramo(double X, const Pasos& pasos, EscaleraTramoPunto& punto) const;

    /// Forces of the half landing at the angle θ from its crown, radians.
    void EnDescanso(double teta, const Pasos& pasos, EscaleraDescansoPunto& punto) const;

  private:
    double Momento(double X, double W, double momentoApoyo) const;
    double Corte(double X, double W, double momentoApoyo) const;
    double Axial(double X) const;

    double L_, B_, WT_, Wd_, WpD_;
    double Hh_;  ///< rise of one flight, m
    double Bh_;  ///< half the width, m
    double seno_, coseno_, tangente_;
    EstaticaEscaleraT e_;
};

}  // namespace trabex::escaleras
