#pragma once

#include <array>
#include <cstdint>

#include "reports/montaje/SuperficieOculta.h"

namespace trabex::montaje {

/// Paper of a report of drawings that its dialog asks for.
struct PapelDeGraficos {
    bool A4 = false;  ///< or else letter
    bool Apaisado = true;
};

/// Room for a drawing on a page of that paper, in its own size: within margins of 18, 15, 18 and 16 mm, less
/// 28 mm for the lines above the drawing.
constexpr TamanoGrafico TamanoDe(const PapelDeGraficos& papel) {
    constexpr std::array<std::array<TamanoGrafico, 2>, 2> tamanos{
        {{{{10365, 12315}, {13965, 8715}}}, {{{10020, 13320}, {14955, 8385}}}}};
    return tamanos[papel.A4 ? 1 : 0][papel.Apaisado ? 1 : 0];
}

}  // namespace trabex::montaje
