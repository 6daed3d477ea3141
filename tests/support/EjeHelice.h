#pragma once

#include <array>
#include <cmath>

#include "helical/DatosEscaleraH.h"
#include "helical/ResultadosEscaleraH.h"

namespace trabex::prueba {

using namespace helices;

struct Vector3 : std::array<double, 3> {};

inline Vector3 operator+(const Vector3& a, const Vector3& b) {
    return {a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}
inline Vector3 operator-(const Vector3& a, const Vector3& b) {
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}
inline Vector3 operator*(double k, const Vector3& a) {
    return {k * a[0], k * a[1], k * a[2]};
}
inline double Punto(const Vector3& a, const Vector3& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}
inline Vector3 Cruz(const Vector3& a, const Vector3& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

/// The axis of a helical stair in space: Z up, the centre of the flight on X, descending with θ.
struct EjeHelice {
    explicit EjeHelice(const DatosEscaleraH& e)
        : R(e.R),
          fi(e.Angulo / 2 * std::acos(-1) / 180),
          pendiente(e.H / (2 * e.R * fi)),
          coseno(1 / std::hypot(1.0, pendiente)),
          seno(pendiente * coseno),
          Rcarga(e.R + e.B * e.B / (12 * e.R)) {}

    Vector3 Radial(double t) const { return {std::cos(t), std::sin(t), 0}; }
    Vector3 Tangente(double t) const { return {-coseno * std::sin(t), coseno * std::cos(t), -seno}; }
    Vector3 Normal(double t) const { return Cruz(Radial(t), Tangente(t)); }  // upward
    Vector3 Posicion(double t) const { return {R * std::cos(t), R * std::sin(t), -R * t * pendiente}; }
    /// Where the load of an arc element acts: at the centroid of the annular sector.
    Vector3 Carga(double t) const { return Posicion(t) + (Rcarga - R) * Radial(t); }

    double R, fi, pendiente, coseno, seno, Rcarga;
};

/// Action of the part above a section on the part below it.
struct Accion {
    Vector3 F{}, M{};
};

/// A station's forces as vectors in space.
inline Accion AccionDe(const EstacionEscaleraH& s, const EjeHelice& eje, double t) {
    const Vector3 tangente = eje.Tangente(t);
    const Vector3 radial = eje.Radial(t);
    const Vector3 normal = eje.Normal(t);
    return {s.N * tangente + s.QY * radial - s.QX * normal, s.MY * normal - s.MT * tangente - s.MX * radial};
}

}  // namespace trabex::prueba
