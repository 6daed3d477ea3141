#include "drawing/helice/Perspectiva.h"

#include <cmath>

#include "base/Angulos.h"

namespace trabex::dibujo::helice {

namespace {
constexpr double MetrosAlOjo = 60;
}

Perspectiva::Perspectiva(double H, const Giro& giro)
    : distancia_(H + MetrosAlOjo),
      senoA_(std::sin(EnRadianes(-giro.GiroVertical))),
      cosenoA_(std::cos(EnRadianes(-giro.GiroVertical))),
      senoB_(std::sin(EnRadianes(giro.GiroHorizontal))),
      cosenoB_(std::cos(EnRadianes(giro.GiroHorizontal))) {}

Punto3 Perspectiva::Girar(const Punto3& p) const {
    const double fondo = senoB_ * p.x + cosenoB_ * p.z;
    return {cosenoB_ * p.x - senoB_ * p.z, cosenoA_ * p.y - fondo * senoA_, fondo * cosenoA_ + senoA_ * p.y};
}

PuntoVisto Perspectiva::Ver(const Punto3& punto) const {
    const Punto3 girado = Girar(punto);
    const double lejos = girado.z + distancia_;
    if (lejos == 0) return {girado.x, girado.y, girado.z};
    return {girado.x / lejos * distancia_, girado.y / lejos * distancia_, girado.z};
}

}  // namespace trabex::dibujo::helice
