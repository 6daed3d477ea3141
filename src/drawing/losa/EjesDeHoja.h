#pragma once

#include <cstddef>
#include <vector>

#include "drawing/losa/GruposDeTramos.h"
#include "slab/Losa.h"

namespace trabex::dibujo::losa {

/// Position of a slab's axes, m: x to the right with what the sheet shows of it, undisplaced, centred on 0, y
/// upward. Counts from 1.
struct EjesDeHoja {
    std::vector<double> EjesX;
    std::vector<double> EjesY;
    double YMaximo = 0;  ///< of the axes on show
    double YMinimo = 0;
    double Longitud = 0;  ///< sum of the lengths of the spans on show
};

/// Shifts of joints that do not exist are left out. At least one span.
EjesDeHoja UbicarEjes(const losas::Losa& losa, const GrupoDeTramos& tramos);
EjesDeHoja UbicarEjes(const losas::Losa& losa);

/// Slope of span i, radians: 0 where its axes stand one above the other.
double PendienteDeTramo(const EjesDeHoja& ejes, std::size_t i);

/// A point of the sheet's world, m.
struct Lugar {
    double x;
    double y;
};

/// On the line through a span's axes, at `d` m from the first along the horizontal.
Lugar EnTramo(const EjesDeHoja& ejes, std::size_t i, double d);
Lugar MitadDeTramo(const EjesDeHoja& ejes, std::size_t i);

}  // namespace trabex::dibujo::losa
