#pragma once

#include <cstdint>

namespace trabex {

/// A rectangular section under flexure, in cm.
struct SeccionFlexion {
    double b;              ///< width
    double h;              ///< total depth
    double Recubrimiento;  ///< from either face to the centre of its steel
};

/// Strengths in kgf/cm².
struct Materiales {
    std::int16_t FC;
    std::int16_t FY;
};

/// Theoretical flexural steel in cm².
struct AcerosFlexion {
    double Traccion = 0;
    double Compresion = 0;
};

/// Flexural steel of a rectangular section by ultimate strength, for Mu = |M|·(load factor)/φ·100 in kgf·cm,
/// not negative.
///
/// Up to the moment of a mechanical ratio of 0.2 (Mlim = 0.2·F'c·0.882·b·d²) the section takes tension steel
/// only, As = Mu/(Fy·(1 − 0.59ω)·d); beyond it the excess is carried by a couple of steels, the compression
/// one at a stress of at most Fy. Neither minimum nor maximum steel applies. Whitney's rectangular block,
/// as in ACI 318-63 and its successors. A section too small for its cover yields what the formulas yield.
AcerosFlexion RefuerzoFlexion(double Mu, const SeccionFlexion& seccion, const Materiales& materiales);

/// Theoretical steel at the two faces of a section, cm².
struct AceroCaras {
    double AsSup = 0;
    double AsInf = 0;
};

/// The steels of a moment M at their faces: a positive one pulls the bottom face, a negative or zero one the
/// top.
AceroCaras RepartirEnCaras(double M, const AcerosFlexion& As);

}  // namespace trabex
