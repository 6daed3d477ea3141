#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <tuple>
#include <utility>
#include <vector>

#include "base/DatosGenerales.h"
#include "support/PorticoDenso.h"

namespace trabex::prueba {

/// The design of a slab by the program's rules in more digits, from the reference's own end forces. Steel is
/// sought by bisection on the moment that a steel ratio resists, and stations are counted, not summed.
class DisenoDeReferencia {
  public:
    struct Eje {
        Real AS1 = 0, AS2 = 0, MczI = 0, MczD = 0, PtoI = 0, PtoD = 0;
    };
    struct TramoDisenado {
        Real MT = 0, x = 0, AS1 = 0, AS2 = 0;
    };

    DisenoDeReferencia(const Losa& losa, const DatosGenerales& g, const PorticoDenso& permanente,
                       const PorticoDenso& variable)
        : losa_(losa),
          g_(g),
          N_(losa.Tramos.size() - 1),
          Ejes(N_ + 2),
          Tramos(N_ + 1),
          Dudoso(N_ + 1),
          extremos_(N_ + 1),
          coseno_(N_ + 1) {
        for (std::size_t i = 1; i <= N_; ++i) {
            const auto mayorado = [&](Real PorticoDenso::Extremos::*campo) {
                return g.FCP * permanente.ExtremosDeBarras()[i].*campo +
                       g.FCV * variable.ExtremosDeBarras()[i].*campo;
            };
            using E = PorticoDenso::Extremos;
            extremos_[i] = {mayorado(&E::MA), mayorado(&E::VA), 0, mayorado(&E::MB), mayorado(&E::VB), 0};
            coseno_[i] = permanente.Coseno(i);
            TramoMasCargado(i);
        }
        for (std::size_t i = 1; i <= N_; ++i) Junta(i);
    }

  private:
    const Losa& losa_;
    const DatosGenerales& g_;
    const std::size_t N_;

  public:
    std::vector<Eje> Ejes;
    std::vector<TramoDisenado> Tramos;
    /// Whether the rules judge span i by the last digit: its moment touches zero without crossing it, as at
    /// the end of a cantilever.
    std::vector<bool> Dudoso;
    Real MaxMomentoApoyo = 0, MaxCorte = 0, MaxMomentoTramo = 0;

  private:
    Real w(std::size_t i, Real C) const {
        return (g_.FCP * losa_.Tramos[i].Wp + g_.FCV * losa_.Tramos[i].WV) * C;
    }
    bool Interior(std::size_t i) const {
        const Tramo& t = losa_.Tramos[i];
        return t.p1 != 0 && t.L1 != 0 && t.L1 != t.LT;
    }
    static Real Redondo(Real valor, Real factor) { return std::nearbyint(valor * factor) / factor; }

    /// Moment and shear at x along member i, the point load counted from where it stands on.
    std::pair<Real, Real> En(std::size_t i, Real x) const {
        const Real C = coseno_[i], q = w(i, C), a = losa_.Tramos[i].L1 / C;
        const Real P = Interior(i) && x >= a ? g_.FCP * losa_.Tramos[i].p1 * C : 0;
        return {extremos_[i].MA + extremos_[i].VA * x - q * x * x / 2 - P * (x - a),
                extremos_[i].VA - q * x - P};
    }

    void TramoMasCargado(std::size_t i) {
        const PorticoDenso::Extremos& e = extremos_[i];
        const Real Ls = losa_.Tramos[i].LT / coseno_[i];
        Real x = 0;
        Real MT = 0;
        if (Interior(i)) {
            int k = 0;
            while (k <= 1000 && En(i, Ls * k / 1000).second > 0) ++k;
            x = k <= 1000 ? Ls * k / 1000 : 0;
            Dudoso[i] = std::fabs(En(i, Ls).second) < 1e-6L;
            if (x > 0 && x < Ls) {
                MT = En(i, x).first;
                // A station that shows no more centimetres than the load counts as standing before it.
                const Real a = losa_.Tramos[i].L1 / coseno_[i];
                if (x > a && Redondo(x, 100) <= Redondo(a, 100))
                    MT += g_.FCP * losa_.Tramos[i].p1 * coseno_[i] * (x - a);
            }
        } else if (const Real q = w(i, coseno_[i]); q != 0) {
            x = e.VA / q;
            const Real redondo = Redondo(x, 1000);
            if (redondo > 0 && redondo < Ls)
                MT = En(i, x).first;
            else
                x = 0;
        }
        Tramos[i] = {MT, x, 0, 0};
        std::tie(Tramos[i].AS1, Tramos[i].AS2) = Acero(MT);
        MaxMomentoTramo = std::max(MaxMomentoTramo, std::fabs(MT));
        MaxCorte = std::max({MaxCorte, std::fabs(e.VA), std::fabs(e.VB)});
        MaxMomentoApoyo = std::max({MaxMomentoApoyo, std::fabs(e.MA), std::fabs(e.MB)});
    }

    /// Top and bottom steel of a factored moment.
    std::pair<Real, Real> Acero(Real M) const {
        const auto [ancho, alto] = SeccionDeCalculo(losa_);
        const Real r = g_.D8 * 100, b = ancho * 100, d = alto * 100 - r, fy = g_.FY;
        const Real Mu = std::fabs(M) / g_.FiMomento * 100;
        const Real limite = 0.2L * g_.FC * 0.882L * b * d * d;
        Real traccion = 0;
        Real compresion = 0;
        if (Mu <= limite) {
            // ω − ω²/1.7 = Mu/(F'c·b·d²), and As from the arm that goes with that ω.
            Real menor = 0, mayor = 0.85L;
            for (int k = 0; k < 80; ++k) {
                const Real medio = (menor + mayor) / 2;
                (medio - medio * medio / 1.7L < Mu / (g_.FC * b * d * d) ? menor : mayor) = medio;
            }
            traccion = Mu / (fy * d * (1 - 0.59L * menor));
        } else {
            const Real beta = 0.85L - std::max(0, g_.FC - 280) * 0.05L / 70;
            const Real c = 0.2L * d / 0.85L / beta;
            traccion = limite / (fy * 0.882L * d) + (Mu - limite) / ((d - r) * fy);
            compresion = (Mu - limite) / ((d - r) * std::min(fy, 6300 * (c - r) / c));
        }
        return M > 0 ? std::pair{compresion, traccion} : std::pair{traccion, compresion};
    }

    /// Solid zone beside joint j, by the load of the span to its left.
    Real Macizado(std::size_t j, Real V, Real M, Real C) const {
        const Real q = w(j - 1, C);
        if (q == 0) return 0;
        const Real b = losa_.Bo * 100, d = losa_.Ho * 100 - g_.D8 * 100;
        const Real Vc = 0.53L * 1.1L * std::sqrt(static_cast<Real>(g_.FC)) * b * d * g_.FiCorte;
        const Real porCorte = (std::fabs(V) - Vc) / q;
        // Where the moment has fallen to the limit: M − V·x + q·x²/2 = limit, the nearer root.
        const Real sobra = std::fabs(M) - 0.2L * g_.FC * 0.882L * b * d * d / 100;
        const Real discriminante = V * V - 2 * q * sobra;
        const Real porMomento =
            discriminante / q < 0 ? losa_.Tramos[j].LT : (std::fabs(V) - std::sqrt(discriminante)) / q;
        return std::max({porCorte, porMomento, Real{0}});
    }

    void Junta(std::size_t i) {
        const PorticoDenso::Extremos& e = extremos_[i];
        std::tie(Ejes[i].AS1, Ejes[i].AS2) = Acero(e.MA);
        if (i == N_) std::tie(Ejes[i + 1].AS1, Ejes[i + 1].AS2) = Acero(e.MB);
        if (!losa_.OpcionMaciza && losa_.Ejes[i].Tipo != 5) {
            Ejes[i].MczI = Macizado(i, extremos_[i - 1].VB, extremos_[i - 1].MB, coseno_[i]);
            Ejes[i].MczD = Macizado(i, e.VA, e.MA, coseno_[i]);
            if (i == N_) Ejes[i + 1].MczI = Macizado(i, e.VB, e.MB, coseno_[i]);
        }
        const Real Ls = losa_.Tramos[i].LT / coseno_[i];
        auto [cerca, lejos] = Interior(i) ? PorEstaciones(i, Ls) : PorParabola(i);
        const auto dentro = [&](Real x) { return x > 0 && Redondo(x, 100) < Redondo(Ls, 100); };
        if (dentro(cerca)) Ejes[i].PtoD = cerca;
        if (dentro(lejos)) Ejes[i + 1].PtoI = Ls - lejos;
    }

    std::pair<Real, Real> PorEstaciones(std::size_t i, Real Ls) const {
        int k = 0;
        while (k <= 1001 && En(i, Ls * k / 1000).first < 0) ++k;
        if (k > 1001) return {0, 0};
        const Real cerca = Ls * k / 1000;
        while (k <= 1000 && En(i, Ls * k / 1000).first >= 0) ++k;
        return {cerca, k <= 1000 ? Ls * k / 1000 : 0};
    }

    std::pair<Real, Real> PorParabola(std::size_t i) {
        const Real q = w(i, coseno_[i]);
        const Real V = std::fabs(extremos_[i].VA);
        const Real discriminante = V * V + 2 * q * extremos_[i].MA;
        Dudoso[i] = std::fabs(discriminante) < 1e-9L * V * V;
        if (q == 0 || !(discriminante > 0)) return {0, 0};
        return {(V - std::sqrt(discriminante)) / q, (V + std::sqrt(discriminante)) / q};
    }

    std::vector<PorticoDenso::Extremos> extremos_;
    std::vector<Real> coseno_;
};

}  // namespace trabex::prueba
