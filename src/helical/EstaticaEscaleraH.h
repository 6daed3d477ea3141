#pragma once

#include "base/VigilanciaFlotante.h"
#include "helical/DatosEscaleraH.h"
#include "helical/ResultadosEscaleraH.h"

namespace trabex::helices {

/// Developed plan length R·2π·Angulo/360, m.
double LargoEnPlanta(const DatosEscaleraH& escalera);

/// Slope of the axis for that length, arctan(H/L), degrees.
double PendienteEnGrados(const DatosEscaleraH& escalera, double L);

/// The two unknowns at the centre of the flight, dimensionless: shear X·W·R and moment W·R²·(c0 + Y).
struct HiperestaticasHelice {
    double X;
    double Y;
};

/// Forces in a helicoidal bar of section B by T, fixed at both ends, under W per metre of plan arc.
///
/// Force method (V. A. Morgan, "Comparison of analysis of helical staircases", 1960): by symmetry about the
/// centre only the horizontal shear and the moment about the radial axis are unknown there, and they make the
/// work  ∫(MX²/2EI1 + MY²/2EI2 + MT²/2GJ)ds  least, with I1 = B·T³/12, I2 = T·B³/12 and
/// GJ = 2·E·I1·I2/(I1 + I2): axial force and shear do not deform the bar. The load acts at the centroid of
/// the annular sector, B²/(12·R) outside the axis. Lengths in m, forces in kgf, moments in kgf·m.
class CalculoEstaticoH {
  public:
    /// `Alfa` in degrees.
    CalculoEstaticoH(const DatosEscaleraH& escalera, double Alfa);

    const HiperestaticasHelice& Hiperestaticas() const { return incognitas_; }

    /// Axial force and the shear in the plane of the thickness at the angle θ in plan from the centre,
    /// radians; negative towards the upper support.
    double N(double teta) const;
    double QX(double teta) const;

    /// All forces at the angle θ.
    void EsfuerzosEn(double teta, const Pasos& pasos, EstacionEscaleraH& estacion) const;

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
