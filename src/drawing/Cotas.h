#pragma once

#include <string_view>

#include "drawing/Plano.h"

namespace trabex::dibujo {

/// Where a dimension's text stands, and with it which way its line runs: above the middle of a horizontal
/// line or after its end, at the left or the right of the middle of a vertical one.
enum class TextoDeCota { Encima, AlFinal, Izquierda, Derecha };

enum class SentidoDeCota { Horizontal, Vertical };
inline constexpr std::int32_t PixelesSobreCota = 1;  ///< between a horizontal line and the text above it

/// The line alone, of a dimension whose text is placed by itself.
void DibujeCota(const Plano& plano, PuntoLienzo desde, PuntoLienzo hasta, SentidoDeCota sentido,
                const Pluma& pluma = {});

/// A dimension line of the canvas, from its left or upper end to the other: an arrowhead looks out at each
/// end. The text is in the current font and colour.
void Acotar(const Plano& plano, PuntoLienzo desde, PuntoLienzo hasta, std::string_view texto,
            TextoDeCota lugar, const Pluma& pluma = {});

}  // namespace trabex::dibujo
