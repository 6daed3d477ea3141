#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "base/ErrorEjecucion.h"

namespace trabex::helices {

/// A station of a helical stair. Forces in kgf, moments in kgf·m, steel in cm².
struct EstacionEscaleraH {
    double N = 0;          ///< axial force
    double QX = 0;         ///< shear in the plane of the flight's thickness; the stirrups carry it
    double QY = 0;         ///< horizontal shear
    double MT = 0;         ///< torsional moment
    double MX = 0;         ///< moment about the radial axis; a positive one pulls the lower face
    double MY = 0;         ///< lateral moment
    double MS1 = 0;        ///< MX when negative, else 0
    double MI1 = 0;        ///< MX when not negative, else 0
    double TU = 0;         ///< area of the MT diagram, kgf·m²
    double ASXS = 0;       ///< steel on the upper face for MX
    double ASXI = 0;       ///< steel on the lower face for MX
    double AsY = 0;        ///< tension steel for MY
    double AsT = 0;        ///< one leg of the stirrup: 0.71 (3/8") or 1.27 (1/2")
    double LON = 0;        ///< longitudinal steel for torsion, whole
    std::int16_t SEP = 0;  ///< stirrup spacing, cm
    double ASMin = 0;      ///< minimum steel
};

/// All that a calculation leaves. Both arrays count from 1: slot 0 stays zero, and so does the record past
/// the last station, which the area of the torsion diagram reads. They are empty until a calculation fills
/// them.
struct ResultadosEscaleraH {
    double L = 0;          ///< developed plan length, m
    double Alfa = 0;       ///< slope of the axis, degrees
    double X = 0;          ///< horizontal shear at the centre over W·R
    double Y = 0;          ///< the centre moment is W·R²·(Y − 1 − B²/(12·R²))
    std::int32_t FV = 0;   ///< vertical reaction, kgf
    std::int32_t Fh = 0;   ///< horizontal reaction, kgf; a sum of projections where statics subtracts
    std::size_t NEst = 0;  ///< stations of each array
    std::vector<EstacionEscaleraH> TramoSuperior;  ///< from the upper support towards the centre
    std::vector<EstacionEscaleraH> TramoInferior;  ///< from the centre towards the lower support
    std::optional<ErrorEjecucion> Error;           ///< the run-time error that ended the calculation
};

}  // namespace trabex::helices
