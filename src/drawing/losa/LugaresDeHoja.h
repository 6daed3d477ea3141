#pragma once

#include <cstddef>
#include <optional>

#include "drawing/losa/HojaLosa.h"

namespace trabex::dibujo::losa {

// Where the sheet that was last drawn shows its slab: for whoever points at it. Which spans are on show
// stands in `HojaLosa::Tramos`: its axes are those from its first to the one after its last.

/// Canvas column of an axis, unrounded.
double XDeEje(const HojaLosa& hoja, std::size_t eje);

/// A place along a span: `d` m from its first axis along the horizontal.
struct LugarEnTramo {
    std::size_t Tramo;
    double d;
};
/// The span on show over or under which a canvas column lies; nothing beside the slab.
std::optional<LugarEnTramo> TramoEn(const HojaLosa& hoja, double x);

/// The band in which a point of the canvas lies, where it lies in one.
std::optional<BandaDe> BandaEn(const HojaLosa& hoja, double x, double y);

}  // namespace trabex::dibujo::losa
