#pragma once

#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

#include "slab/Losa.h"

namespace trabex::prueba {

using namespace losas;

/// More digits than the program's own, where the compiler has them.
using Real = long double;

/// A plane frame by the program's rules in more digits, and written otherwise: Y upward, the load integrated
/// along each bar with Hermite functions by Gauss quadrature, full matrix with pivoting. The rules it shares:
/// a restrained direction has its stiffness times 10¹² plus 10¹² and no load, displacements under 10⁻⁸ are
/// none, end forces are rounded to 8 decimals.
class PorticoDenso {
  public:
    /// End moments (positive when they sag), shears and axial forces of a bar.
    struct Extremos {
        Real MA, VA, NA, MB, VB, NB;
    };
    /// Displacements of a joint, Y downward.
    struct Desplazamiento {
        Real DX, DY, Giro;
    };

    PorticoDenso(const Losa& losa, std::int16_t FC, bool variable) : losa_(losa), variable_(variable) {
        const auto [b, h] = SeccionDeCalculo(losa);
        const Real E = 15100 * std::sqrt(static_cast<Real>(FC)) * 10000;
        EA_ = E * b * h;
        EI_ = E * b * h * h * h / 12;
        const std::size_t n = losa.Tramos.size();
        x_.assign(n + 1, 0);
        y_.assign(n + 1, 0);
        for (std::size_t j = 2; j <= n; ++j) x_[j] = x_[j - 1] + losa.Tramos[j - 1].LT;
        for (std::size_t k = 1; k < losa.JuntasD.size(); ++k) {
            x_[static_cast<std::size_t>(losa.JuntasD[k].Junta)] += losa.JuntasD[k].x;
            y_[static_cast<std::size_t>(losa.JuntasD[k].Junta)] -= losa.JuntasD[k].y;
        }
        Resolver();
    }

    const std::vector<Extremos>& ExtremosDeBarras() const { return extremos_; }
    Real Coseno(std::size_t i) const { return BarraDe(i).c; }
    Desplazamiento DesplazamientoDe(std::size_t j) const {
        return {d_[3 * j - 3], -d_[3 * j - 2], d_[3 * j - 1]};
    }
    /// What the bars of joint j bring to it: upward, and toward the first joint.
    std::pair<Real, Real> FuerzasEn(std::size_t j) const {
        Real RV = 0;
        Real RH = 0;
        if (j > 1) Proyectar(j - 1, -extremos_[j - 1].NB, extremos_[j - 1].VB, RV, RH);
        if (j < losa_.Tramos.size()) Proyectar(j, extremos_[j].NA, extremos_[j].VA, RV, RH);
        return {RV, RH};
    }

  private:
    void Resolver() {
        const std::size_t juntas = losa_.Tramos.size();
        Matriz A(3 * juntas, std::vector<Real>(3 * juntas + 1));
        for (std::size_t i = 1; i < juntas; ++i) Sumar(A, i);
        for (std::size_t j = 1; j <= juntas; ++j) {
            CargarNudo(A, j);
            const int tipo = losa_.Ejes[j].Tipo;
            if (tipo == 1 || tipo == 3 || tipo == 4) Sujetar(A, 3 * j - 3);
            if (tipo == 1 || tipo == 2 || tipo == 4) Sujetar(A, 3 * j - 2);
            if (tipo == 4) Sujetar(A, 3 * j - 1);
        }
        d_ = Gauss(A);
        for (Real& valor : d_) {
            if (std::fabs(valor) < 1e-8L) valor = 0;
        }
        extremos_.resize(juntas);
        for (std::size_t i = 1; i < juntas; ++i) extremos_[i] = Extremo(d_, i);
    }

    using Matriz = std::vector<std::vector<Real>>;

    struct Barra {
        Real L, c, s;
    };
    Barra BarraDe(std::size_t i) const {
        const Real dx = x_[i + 1] - x_[i];
        const Real dy = y_[i + 1] - y_[i];
        const Real L = std::hypot(dx, dy);
        return {L, dx / L, dy / L};
    }

    Matriz RigidezLocal(Real L) const {
        const Real a = EA_ / L, p = 12 * EI_ / (L * L * L), q = 6 * EI_ / (L * L), r = 4 * EI_ / L,
                   t = 2 * EI_ / L;
        return {{a, 0, 0, -a, 0, 0}, {0, p, q, 0, -p, q},   {0, q, r, 0, -q, t},
                {-a, 0, 0, a, 0, 0}, {0, -p, -q, 0, p, -q}, {0, q, t, 0, -q, r}};
    }

    /// Equivalent nodal loads in the bar's axes.
    std::vector<Real> CargaLocal(std::size_t i) const {
        const Tramo& tramo = losa_.Tramos[i];
        const auto [L, c, s] = BarraDe(i);
        std::vector<Real> f(6, 0);
        const auto aplicar = [&, L = L, c = c, s = s](Real vertical, Real z) {
            const Real u = z / L;
            const Real px = -vertical * s, py = -vertical * c;
            f[0] += px * (1 - u);
            f[3] += px * u;
            f[1] += py * (1 - 3 * u * u + 2 * u * u * u);
            f[2] += py * L * u * (1 - u) * (1 - u);
            f[4] += py * (3 * u * u - 2 * u * u * u);
            f[5] += py * -L * u * u * (1 - u);
        };
        const Real w = variable_ ? tramo.WV : tramo.Wp;
        for (const Real g : {-std::sqrt(0.6L), 0.0L, std::sqrt(0.6L)})  // exact to the fifth degree
            aplicar(w * L / 2 * (g == 0 ? 8.0L / 9 : 5.0L / 9), L / 2 * (1 + g));
        if (!variable_ && tramo.p1 != 0 && tramo.L1 > 0 && tramo.L1 < tramo.LT)
            aplicar(tramo.p1, tramo.L1 / c);
        return f;
    }

    static std::vector<Real> Girar(const Barra& b, const std::vector<Real>& v, Real sentido) {
        std::vector<Real> g(6);
        for (std::size_t k = 0; k < 6; k += 3) {
            g[k] = b.c * v[k] - sentido * b.s * v[k + 1];
            g[k + 1] = sentido * b.s * v[k] + b.c * v[k + 1];
            g[k + 2] = v[k + 2];
        }
        return g;
    }

    void Sumar(Matriz& A, std::size_t i) const {
        const Barra b = BarraDe(i);
        const Matriz k = RigidezLocal(b.L);
        const std::size_t base = 3 * i - 3;
        for (std::size_t q = 0; q < 6; ++q) {
            std::vector<Real> unidad(6, 0);
            unidad[q] = 1;
            const std::vector<Real> local = Girar(b, unidad, -1);
            std::vector<Real> fuerza(6, 0);
            for (std::size_t p = 0; p < 6; ++p)
                for (std::size_t m = 0; m < 6; ++m) fuerza[p] += k[p][m] * local[m];
            const std::vector<Real> global = Girar(b, fuerza, 1);
            for (std::size_t p = 0; p < 6; ++p) A[base + p][base + q] += global[p];
        }
        const std::vector<Real> f = Girar(b, CargaLocal(i), 1);
        for (std::size_t p = 0; p < 6; ++p) A[base + p].back() += f[p];
    }

    static void Sujetar(Matriz& A, std::size_t r) {
        A[r][r] = A[r][r] * 1e12L + 1e12L;
        A[r].back() = 0;
    }

    /// A point load right over a joint: the end of the span before it, or the beginning of its own.
    void CargarNudo(Matriz& A, std::size_t j) const {
        if (variable_) return;
        const Tramo& antes = losa_.Tramos[j - 1];
        if (j > 1 && antes.L1 == antes.LT) A[3 * j - 2].back() -= antes.p1;
        if (j < losa_.Tramos.size() && losa_.Tramos[j].L1 == 0) A[3 * j - 2].back() -= losa_.Tramos[j].p1;
    }

    void Proyectar(std::size_t i, Real N, Real V, Real& RV, Real& RH) const {
        const Barra b = BarraDe(i);
        RV += b.c * V - b.s * N;
        RH += b.c * N + b.s * V;
    }

    static std::vector<Real> Gauss(Matriz& A) {
        const std::size_t n = A.size();
        for (std::size_t k = 0; k < n; ++k) {
            std::size_t mayor = k;
            for (std::size_t r = k + 1; r < n; ++r)
                if (std::fabs(A[r][k]) > std::fabs(A[mayor][k])) mayor = r;
            std::swap(A[k], A[mayor]);
            for (std::size_t r = k + 1; r < n; ++r) {
                const Real m = A[r][k] / A[k][k];
                for (std::size_t c = k; m != 0 && c <= n; ++c) A[r][c] -= m * A[k][c];
            }
        }
        std::vector<Real> d(n);
        for (std::size_t k = n; k-- > 0;) {
            d[k] = A[k][n];
            for (std::size_t c = k + 1; c < n; ++c) d[k] -= A[k][c] * d[c];
            d[k] /= A[k][k];
        }
        return d;
    }

    Extremos Extremo(const std::vector<Real>& d, std::size_t i) const {
        const Barra b = BarraDe(i);
        const auto desde = d.begin() + static_cast<std::ptrdiff_t>(3 * i - 3);
        const std::vector<Real> u = Girar(b, std::vector<Real>(desde, desde + 6), -1);
        const Matriz k = RigidezLocal(b.L);
        std::vector<Real> f = CargaLocal(i);
        for (std::size_t p = 0; p < 6; ++p) {
            f[p] = -f[p];
            for (std::size_t m = 0; m < 6; ++m) f[p] += k[p][m] * u[m];
        }
        Extremos e{-f[2], f[1], -f[0], f[5], f[4], f[3]};
        for (Real* valor : {&e.MA, &e.VA, &e.NA, &e.MB, &e.VB, &e.NB})
            *valor = std::nearbyint(*valor * 1e8L) / 1e8L;
        return e;
    }

    const Losa& losa_;
    bool variable_;
    Real EA_, EI_;
    std::vector<Real> x_, y_;
    std::vector<Real> d_;
    std::vector<Extremos> extremos_;
};

}  // namespace trabex::prueba
