#pragma once

#include "helical/DatosEscaleraH.h"
#include "helical/ResultadosEscaleraH.h"

namespace trabex::helices {

/// π as the helical formulas write it.
inline constexpr double PiHelice = 3.14159265358979;
inline constexpr double DosPiHelice = 6.28318530717958;

inline double EnRadianes(double grados) {
    return grados * PiHelice / 180;
}
inline double EnGrados(double radianes) {
    return radianes * 180 / PiHelice;
}

/// Developed plan length, m, and slope of the axis, degrees.
struct GeometriaHelice {
    double L;
    double Alfa;
};
GeometriaHelice GeometriaDe(const DatosEscaleraH& escalera);

/// The two unknowns at the centre of the flight, dimensionless: shear X·W·R and moment W·R²·(c0 + Y).
struct HiperestaticasHelice {
    double X;
    double Y;
};

/// Forces in a helicoidal bar of section B by T, fixed at both ends, under W per metre of plan arc.
///
/// Force method (V. A. Morgan, "Comparison of analysis of helical staircases", 1960): by symmetry about the
/// centre only the horizontal shear and the moment about the radial axis are unknown there. Bending about
/// both axes and torsion deform the bar, axial force and shear do not; the torsional stiffness is
/// 2·E·I1·I2/(I1 + I2). The load acts at the centroid of the annular sector, B²/(12·R) outside the axis.
class CalculoEstaticoH {
  public:
    /// `Alfa` in degrees.
    CalculoEstaticoH(const DatosEscaleraH& escalera, double Alfa);

    const HiperestaticasHelice& Hiperestaticas() const { return incognitas_; }

    /// Forces at the angle θ in plan from the centre, radians; negative towards the upper support.
    EstacionEscaleraH EsfuerzosEn(double teta) const;

    /// Sine and cosine of the slope.
    double Seno() const { return seno_; }
    double Coseno() const { return coseno_; }

  private:
    HiperestaticasHelice Resolver(double fi, double m, double Rr) const;

    double R_, W_;
    double seno_, coseno_, tangente_;
    double c0_;  ///< load term of MX
    HiperestaticasHelice incognitas_;
};

}  // namespace trabex::helices
