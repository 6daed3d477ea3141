#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "support/Cuadratura.h"
#include "support/EjeHelice.h"

namespace trabex::prueba {

/// A helical stair by least work with all six unknowns at its centre, integrated as vectors in space: neither
/// symmetry nor any formula of the closed form enters. Bending about both axes and torsion, of stiffness
/// 2·E·I1·I2/(I1 + I2); the load at the centroid of the annular sector.
class HelicePorTrabajo {
  public:
    explicit HelicePorTrabajo(const DatosEscaleraH& e) : eje_(e), W_(e.W) {
        flexibilidad_[0] = 1 / (e.B * std::pow(e.T, 3) / 12);  // MX, about the radius
        flexibilidad_[1] = 1 / (e.T * std::pow(e.B, 3) / 12);  // MY, about the normal
        flexibilidad_[2] = (flexibilidad_[0] + flexibilidad_[1]) / 2;
        Resolver();
    }

    /// What the part above the section at θ exerts on the part below.
    Accion En(double t) const {
        Accion accion = PorCarga(t);
        for (std::size_t k = 0; k < 6; ++k) {
            const Accion unitaria = PorUnidad(k, t);
            accion = {accion.F + incognitas_[k] * unitaria.F, accion.M + incognitas_[k] * unitaria.M};
        }
        return accion;
    }

  private:
    /// The unknown k, force or moment along an axis in space, of 1 at the centre.
    Accion PorUnidad(std::size_t k, double t) const {
        Accion accion;
        (k < 3 ? accion.F : accion.M)[k % 3] = 1;
        accion.M = accion.M + Cruz(eje_.Posicion(0) - eje_.Posicion(t), accion.F);
        return accion;
    }

    /// The load between the centre and the section, which the centre, cut, does not carry.
    Accion PorCarga(double t) const {
        Accion accion;
        accion.F[2] = -W_ * eje_.R * t;
        for (std::size_t k = 0; k < 2; ++k) {
            // The moment of −W·R dτ at the load's place, about the section: (rx, ry) × (0, 0, −1).
            const auto brazo = [&](long double tau) -> long double {
                const auto [x, y, z] = static_cast<std::array<double, 3>>(
                    eje_.Carga(static_cast<double>(tau)) - eje_.Posicion(t));
                return k == 0 ? -y : x;
            };
            accion.M[k] = W_ * eje_.R * static_cast<double>(Integrar(brazo, 0, t, 2));
        }
        return accion;
    }

    /// Moments of an action about the section's own axes.
    std::array<double, 3> Momentos(const Accion& accion, double t) const {
        return {Punto(accion.M, eje_.Radial(t)), Punto(accion.M, eje_.Normal(t)),
                Punto(accion.M, eje_.Tangente(t))};
    }

    template <class Una, class Otra>
    double Trabajo(Una una, Otra otra) const {
        return static_cast<double>(Integrar(
            [&](long double largo) {
                const auto t = static_cast<double>(largo);
                const auto a = Momentos(una(t), t);
                const auto b = Momentos(otra(t), t);
                long double suma = 0;
                for (std::size_t k = 0; k < 3; ++k) suma += flexibilidad_[k] * a[k] * b[k];
                return suma;
            },
            -eje_.fi, eje_.fi, 6));
    }

    void Resolver() {
        std::array<std::array<double, 7>, 6> A{};
        for (std::size_t i = 0; i < 6; ++i) {
            const auto unidad = [this, i](double t) { return PorUnidad(i, t); };
            for (std::size_t j = 0; j < 6; ++j)
                A[i][j] = Trabajo(unidad, [this, j](double t) { return PorUnidad(j, t); });
            A[i][6] = -Trabajo(unidad, [this](double t) { return PorCarga(t); });
        }
        for (std::size_t i = 0; i < 6; ++i) {
            const auto mayor =
                std::max_element(A.begin() + static_cast<std::ptrdiff_t>(i), A.end(),
                                 [i](auto& a, auto& b) { return std::fabs(a[i]) < std::fabs(b[i]); });
            std::swap(A[i], *mayor);
            for (std::size_t j = 0; j < 6; ++j) {
                const double f = j == i ? 0 : A[j][i] / A[i][i];
                for (std::size_t k = i; k < 7; ++k) A[j][k] -= f * A[i][k];
            }
        }
        for (std::size_t i = 0; i < 6; ++i) incognitas_[i] = A[i][6] / A[i][i];
    }

    EjeHelice eje_;
    double W_;
    std::array<double, 3> flexibilidad_{};
    std::array<double, 6> incognitas_{};
};

}  // namespace trabex::prueba
