#pragma once

#include <cmath>

#include "stairs/DatosEscaleraT.h"
#include "support/Cuadratura.h"

namespace trabex::prueba {

/// A self-supporting stair by least work, in extended precision: it shares no formula with the closed form.
///
/// Half the stair is a flight of plan length L that rises H/2 and a quarter circle of radius B/2, from its
/// crown on. The unknowns are the moment at the support and the moment at the crown. EI is 1 in both parts
/// and GJ is 2; bending within the plane of the flight or of the landing is rigid; the landing's own load
/// bends nothing where the work at the crown is weighed.
class EscaleraPorTrabajo {
  public:
    /// For a landing load W, kgf/m.
    EscaleraPorTrabajo(const escaleras::DatosEscaleraT& e, long double W)
        : L_(e.L), B_(e.B), WT_(e.WT), W_(W), alfa_(std::atan2(e.H / 2.0L, L_)) {
        // With the joint free the flight is a cantilever; the thrust that a support moment of 1 asks for
        // is 1/(H/2), so that moment and thrust are one unknown.
        const Unitario empuje{[this](long double X) { return X * std::tan(alfa_); }, std::sin(alfa_) * B_ / 2,
                              0};
        const Unitario clave{[](long double) { return 0.0L; }, std::cos(alfa_), 1};
        const auto carga = [this](long double X) { return MomentoDeCargas(X); };
        const long double f11 = Trabajo(empuje, empuje);
        const long double f12 = Trabajo(empuje, clave);
        const long double f22 = Trabajo(clave, clave);
        const long double f10 =
            Integrar([&](long double X) { return empuje.M(X) * carga(X); }, 0, L_) / std::cos(alfa_);
        // f11·E + f12·MH + f10 = 0 and f12·E + f22·MH = 0.
        const long double det = f11 * f22 - f12 * f12;
        Empuje = -f10 * f22 / det;
        MomentoHorizontal = f10 * f12 / det;
        MomentoApoyo = Empuje * L_ * std::tan(alfa_) + MomentoDeCargas(L_);
    }

    long double Empuje = 0;             ///< E, kgf
    long double MomentoHorizontal = 0;  ///< at the crown, kgf·m
    long double MomentoApoyo = 0;       ///< at the support, kgf·m

    /// Bending moment of the flight at X m in plan from the landing.
    long double Momento(long double X) const { return Empuje * X * std::tan(alfa_) + MomentoDeCargas(X); }

  private:
    /// Moments that an unknown of 1 gives: bending and torsion of the flight; in the landing cos θ and sin θ
    /// times `Clave`.
    template <class Flexion>
    struct Unitario {
        Flexion M;
        long double Torsor;
        long double Clave;
    };
    template <class Flexion>
    Unitario(Flexion, long double, long double) -> Unitario<Flexion>;

    template <class Una, class Otra>
    long double Trabajo(const Una& a, const Otra& b) const {
        const long double tramo =
            Integrar([&](long double X) { return a.M(X) * b.M(X) + a.Torsor * b.Torsor / 2; }, 0, L_) /
            std::cos(alfa_);
        const auto enElDescanso = [&](long double t) {
            const long double flexion = std::cos(t) * std::cos(t);
            const long double torsion = std::sin(t) * std::sin(t) / 2;
            return a.Clave * b.Clave * (flexion + torsion) * B_ / 2;
        };
        return tramo + Integrar(enElDescanso, 0, std::acos(-1.0L) / 2, 4);
    }

    /// Flight and half landing as cantilevers from the free joint.
    long double MomentoDeCargas(long double X) const { return -WT_ * X * X / 2 - W_ * B_ * (X + B_ / 2); }

    long double L_, B_, WT_, W_, alfa_;
};

}  // namespace trabex::prueba
