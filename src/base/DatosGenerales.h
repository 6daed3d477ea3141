#pragma once

#include <cstdint>

namespace trabex {

/// Materials and factors of the elements of one kind: the working values that slabs and stairs share.
/// Whichever workspace opens fills them from its own table (`LosaG`, `EscaleraTG`, `EscaleraHG`).
struct DatosGenerales {
    std::int16_t FC = 250;   ///< concrete strength, kgf/cm²
    std::int16_t FY = 4200;  ///< steel yield strength, kgf/cm²
    double D8 = 0.025;       ///< cover to the bar centre, m
    double FCP = 1.2;        ///< load factor on permanent load (slabs)
    double FCV = 1.6;        ///< load factor on live load (slabs)
    double FiMomento = 0.9;  ///< strength reduction factor in flexure
    double FiCorte = 0.75;   ///< strength reduction factor in shear; no stair calculation uses it
    double FS = 1.55;        ///< load factor on all service forces (stairs)
};

}  // namespace trabex
