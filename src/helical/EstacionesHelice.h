#pragma once

#include <cstddef>
#include <cstdint>

#include "helical/DatosEscaleraH.h"

namespace trabex::helices {

/// Where the stations of a helical stair stand, in whole degrees in plan from its centre: the one place that
/// decides how many there are.
///
/// The upper half runs from its support to the centre and the lower one from the centre to its support, both
/// by steps of `Inter`, and each may stop short of its end.
struct EstacionesHelice {
    std::int16_t Rp = 0;     ///< half the development, rounded half to even
    std::int16_t Inter = 0;  ///< step between stations

    /// Stations of each half. An interval that is not above 0 gives none, and neither does a negative
    /// development.
    std::size_t NEst() const;

    /// Angle of station i, 1 to NEst, negative in the upper half.
    int GradosSuperior(std::size_t i) const { return -(Rp - static_cast<int>(i - 1) * Inter); }
    int GradosInferior(std::size_t i) const { return static_cast<int>(i - 1) * Inter; }

    /// Whether a half with stations has none at its end: the upper one at the centre, the lower one at the
    /// support.
    bool QuedanCortas() const { return NEst() > 0 && Rp % Inter != 0; }
};

/// Throws ErrorEjecucion 6 when half the development is past 16 bits.
EstacionesHelice EstacionesDe(const DatosEscaleraH& escalera);

/// Records that each array of stations holds: slot 0, the stations, and at least one empty record past the
/// last of them, which the area of the torsion diagram reads; their count less 1 is Round(φ/Inter + 2) in
/// degrees. Throws ErrorEjecucion 6 when that is past 16 bits and 9 when it is negative; an interval of 0 is
/// a division by zero.
std::size_t RegistrosPorMitad(const DatosEscaleraH& escalera);

}  // namespace trabex::helices
