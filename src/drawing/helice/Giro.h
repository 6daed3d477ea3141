#pragma once

#include <cstdint>
#include <functional>

#include "drawing/Visor.h"

namespace trabex::dibujo::helice {

enum class ModoGiro : std::uint8_t { Ninguno, Vertical, Horizontal };

/// How the view of a helix is turned, degrees, and whether it is being turned. One for screen and paper; a
/// redraw leaves it as it is.
struct Giro {
    double GiroVertical = 0;    ///< positive: seen from above
    double GiroHorizontal = 0;  ///< about the upright axis
    ModoGiro Modo = ModoGiro::Ninguno;
};

/// A tick of the timer: 5 degrees of the rotation whose mode holds. False when none does.
bool Avanzar(Giro& giro);

/// Keys of the viewport: the arrows pan by 10 pixels, but while a mode holds they turn the view, up and down
/// vertically, left and right horizontally, by the timer's step, and `redibuje` is called. What it refers to
/// must outlive it.
TeclasDeVista TeclasDeHelice(Giro& giro, std::function<void()> redibuje);

/// "Angulo Normal".
void Enderezar(Giro& giro);

}  // namespace trabex::dibujo::helice
