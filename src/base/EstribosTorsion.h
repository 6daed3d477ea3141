#pragma once

#include <optional>

#include "base/DatosGenerales.h"
#include "base/VigilanciaFlotante.h"

namespace trabex {

/// Legs of the bars that stirrups are made of, cm².
inline constexpr double Barra3_8 = 0.71;
inline constexpr double Barra1_2 = 1.27;

/// No stirrups stand further apart, cm.
inline constexpr double SeparacionMaxima = 30;

/// Strength reduction factor in shear and torsion, whatever the general data tell.
inline constexpr double FiCorteYTorsion = 0.85;

/// A rectangular section under torsion, in cm.
struct SeccionTorsion {
    /// Width, height and cover to the bar's centre in m.
    SeccionTorsion(double Ancho, double Alto, double D8);

    double b, h;
    double d;       ///< depth to the steel
    double x1, y1;  ///< sides of the stirrup, along b and along h
    double Sum;     ///< the shorter side squared times the longer one, cm³
};

/// Spacing of closed stirrups, in cm for each cm² of a leg, under the factored torsion Tu and shear V (kgf);
/// nothing where the concrete carries the torsion alone, or where it may be neglected.
///
/// ACI 318-83, 11.6, in kgf and cm, torsions over 100 (Tu in kgf·m), with Σx²y = Sum and Tn = Tu/0.85:
///   neglected below      Tlim = 0.13·√F'c·Σx²y                                     (11.6.1)
///   the concrete's share Tc = 0.21·√F'c·Σx²y / √(1 + (0.4·V/(Ct·Tu))²), Ct = b·d/Σx²y  (11.6.6.1)
///   stirrups carry       Ts = Tn − Tc = A·αt·x1·y1·Fy/s, A being one leg            (11.6.9.1)
/// where αt = 0.66 + 0.33·(side along the longer side of the section)/(the other) ≤ 1.5.
std::optional<double> SeparacionPorArea(const SeccionTorsion& seccion, double Tu, double V,
                                        const DatosGenerales& generales, const Pasos& pasos = {});

/// The widest spacing that the stirrup's own size allows, (x1 + y1)/4 cm (ACI 318-83, 11.6.8.1).
double SeparacionPorTamano(const SeccionTorsion& seccion);

}  // namespace trabex
