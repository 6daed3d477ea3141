#pragma once

#include <cstdint>

namespace trabex {

/// Minimum flexural steel of a beam, (14/Fy)·b·d in cm²: width b and effective depth d in cm, FY in kgf/cm²
/// (ACI 318-83, 10.5.1, where it is 200/fy in psi).
inline double AceroMinimoDeViga(std::int16_t FY, double b, double d) {
    return (14.0 / FY) * b * d;
}

/// Shrinkage and temperature steel of a slab, 0.002·b·d in cm²: b and d in cm (ACI 318-83, 7.12.2).
inline double AceroMinimoDeLosa(double b, double d) {
    return b * 0.002 * d;
}

}  // namespace trabex
