#pragma once

#include "drawing/helice/Giro.h"

namespace trabex::dibujo::helice {

/// x to the right, y up, z away from who looks, m. The axis of the helix is x = z = 0, its middle height y =
/// 0.
struct Punto3 {
    double x = 0;
    double y = 0;
    double z = 0;
};

/// A point of the picture, m from its middle, and how far behind it the point lies.
struct PuntoVisto {
    double x = 0;
    double y = 0;
    double Fondo = 0;
};

/// The eye stands H + 60 m before the axis of the flight, which turns before it.
class Perspectiva {
  public:
    Perspectiva(double H, const Giro& giro);

    double Distancia() const { return distancia_; }
    Punto3 Girar(const Punto3& punto) const;
    PuntoVisto Ver(const Punto3& punto) const;
    /// Whether a point lies well before the eye: what does not can't be drawn as a part of a figure.
    bool Delante(const PuntoVisto& visto) const { return visto.Fondo + distancia_ > distancia_ / 20; }

  private:
    double distancia_;
    double senoA_, cosenoA_;
    double senoB_, cosenoB_;
};

}  // namespace trabex::dibujo::helice
