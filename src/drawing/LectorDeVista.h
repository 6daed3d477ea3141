#pragma once

#include <optional>

#include "drawing/Lienzo.h"

namespace trabex::dibujo {

/// The hair line over a picture, from one of its points to another.
struct LineaDeMira {
    PuntoLienzo Desde;
    PuntoLienzo Hasta;
    friend bool operator==(const LineaDeMira&, const LineaDeMira&) = default;
};

/// Who reads a workspace's drawing at the place that is pointed at. Each answer is the hair line to show over
/// the picture, nothing for none: the drawing itself stays as it is.
class LectorDeVista {
  public:
    virtual ~LectorDeVista() = default;
    /// The pointer is there, or has left.
    virtual std::optional<LineaDeMira> Apuntar(std::optional<PuntoLienzo> lugar) = 0;
    /// The keys that move the line: so many steps to the right.
    virtual std::optional<LineaDeMira> Avanzar(int pasos) = 0;
    /// The drawing was made anew: reads again where the line stood.
    virtual std::optional<LineaDeMira> Releer() = 0;
    /// What is drawn there is to be edited.
    virtual void Abrir(PuntoLienzo lugar) = 0;
};

}  // namespace trabex::dibujo
