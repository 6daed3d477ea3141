#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "drawing/Lienzo.h"
#include "drawing/losa/HojaLosa.h"

namespace trabex::dibujo::losa {

/// What of a slab a point of its sheet shows.
enum class QueToca : std::uint8_t { Tramo, Eje, Apoyo, CargaUniforme, CargaPuntual };

struct Toque {
    QueToca Que;
    std::size_t Lugar;  ///< the span, or for an axis and its support the joint; from 1
    friend bool operator==(const Toque&, const Toque&) = default;
};

/// By the sheet as it was last drawn: the arrow of a point load and its value, the circle of an axis, a
/// support, the load band, the slab's own band and the lengths of the spans. A figure that is small on the
/// canvas is touched a few pixels around it too.
std::optional<Toque> ToqueEn(const HojaLosa& hoja, const losas::Losa& losa, PuntoLienzo lugar);

}  // namespace trabex::dibujo::losa
