#pragma once

#include <cstdint>

#include "base/VigilanciaFlotante.h"

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
/// not negative; lengths in cm, stresses in kgf/cm².
///
/// Whitney's rectangular block (ACI 318-63, 16.1, and its successors), with q = As·Fy/(b·d·F'c):
///   up to Mlim = 0.2·F'c·(1 − 0.59·0.2)·b·d², of q = 0.2: tension steel alone,
///       Mu = As·Fy·d·(1 − 0.59·q), solved for q by 0.59 = 1/(2·0.85) and then for As;
///   beyond it: As1 = Mlim/(0.882·Fy·d), and a couple of steels at d − d' for the rest, the compression one
///       at fs = 6300·(c − d')/c ≤ Fy, where c = 0.2·d/(0.85·β1) and β1 = 0.85 less 0.05 for each 70 kgf/cm²
///       of F'c over 280.
/// Neither minimum nor maximum steel applies, β1 and fs have no lower limit, and a section too small for its
/// cover yields what the formulas yield.
AcerosFlexion RefuerzoFlexion(double Mu, const SeccionFlexion& seccion, const Materiales& materiales,
                              const Pasos& pasos = {});

/// Theoretical steel at the two faces of a section, cm².
struct AceroCaras {
    double AsSup = 0;
    double AsInf = 0;
};

/// The steels of a moment M at their faces: a positive one pulls the bottom face, a negative or zero one the
/// top.
AceroCaras RepartirEnCaras(double M, const AcerosFlexion& As);

}  // namespace trabex
