#pragma once

#include <cmath>
#include <utility>
#include <vector>

#include "slab/Losa.h"

namespace trabex::prueba {

using namespace losas;

/// A plane frame solved otherwise than the program does: Y upward, the load integrated along each bar with
/// Hermite functions by Gauss quadrature, supported directions taken out of the equations, full matrix with
/// pivoting. Results: end moments (positive when they sag), shears and axial forces of each bar.
class PorticoDenso {
  public:
    struct Extremos {
        double MA, VA, NA, MB, VB, NB;
    };

    /// `carga`: vertical downward load per metre of bar i. Point loads (permanent) only when `conPuntual`.
    PorticoDenso(const Losa& losa, double E, bool variable) : losa_(losa), variable_(variable) {
        const auto [b, h] = SeccionDeCalculo(losa);
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
    }

    std::vector<Extremos> Resolver() {
        const std::size_t joints = losa_.Tramos.size();
        const std::size_t n = 3 * joints;
        std::vector<std::vector<double>> A(n, std::vector<double>(n + 1));
        for (std::size_t i = 1; i < joints; ++i) Sumar(A, i);
        for (std::size_t j = 1; j <= joints; ++j) {
            const int tipo = losa_.Ejes[j].Tipo;
            if (tipo == 1 || tipo == 3 || tipo == 4) Suprimir(A, 3 * j - 3);
            if (tipo == 1 || tipo == 2 || tipo == 4) Suprimir(A, 3 * j - 2);
            if (tipo == 4) Suprimir(A, 3 * j - 1);
        }
        std::vector<double> d = Gauss(A);
        for (double& valor : d) {
            if (std::fabs(valor) < 1e-8) valor = 0;  // the program's own rule
        }
        std::vector<Extremos> extremos(joints);
        for (std::size_t i = 1; i < joints; ++i) extremos[i] = Extremo(d, i);
        return extremos;
    }

  private:
    using Matriz6 = std::vector<std::vector<double>>;

    struct Barra {
        double L, c, s;
    };
    Barra BarraDe(std::size_t i) const {
        const double dx = x_[i + 1] - x_[i];
        const double dy = y_[i + 1] - y_[i];
        const double L = std::hypot(dx, dy);
        return {L, dx / L, dy / L};
    }

    Matriz6 RigidezLocal(double L) const {
        const double a = EA_ / L, p = 12 * EI_ / (L * L * L), q = 6 * EI_ / (L * L), r = 4 * EI_ / L,
                     t = 2 * EI_ / L;
        return {{a, 0, 0, -a, 0, 0}, {0, p, q, 0, -p, q},   {0, q, r, 0, -q, t},
                {-a, 0, 0, a, 0, 0}, {0, -p, -q, 0, p, -q}, {0, q, t, 0, -q, r}};
    }

    /// Equivalent nodal loads in the bar's axes.
    std::vector<double> CargaLocal(std::size_t i) const {
        const Tramo& tramo = losa_.Tramos[i];
        const auto [L, c, s] = BarraDe(i);
        std::vector<double> f(6, 0);
        const auto aplicar = [&, L = L, c = c, s = s](double vertical, double z) {
            const double u = z / L;
            const double px = -vertical * s, py = -vertical * c;
            f[0] += px * (1 - u);
            f[3] += px * u;
            f[1] += py * (1 - 3 * u * u + 2 * u * u * u);
            f[2] += py * L * u * (1 - u) * (1 - u);
            f[4] += py * (3 * u * u - 2 * u * u * u);
            f[5] += py * -L * u * u * (1 - u);
        };
        const double w = variable_ ? tramo.WV : tramo.Wp;
        for (const double g : {-std::sqrt(0.6), 0.0, std::sqrt(0.6)})  // exact to the fifth degree
            aplicar(w * L / 2 * (g == 0 ? 8.0 / 9 : 5.0 / 9), L / 2 * (1 + g));
        if (!variable_ && tramo.p1 != 0 && tramo.L1 > 0 && tramo.L1 < tramo.LT)
            aplicar(tramo.p1, tramo.L1 / c);
        return f;
    }

    static std::vector<double> Girar(const Barra& b, const std::vector<double>& v, double sentido) {
        std::vector<double> g(6);
        for (std::size_t k = 0; k < 6; k += 3) {
            g[k] = b.c * v[k] - sentido * b.s * v[k + 1];
            g[k + 1] = sentido * b.s * v[k] + b.c * v[k + 1];
            g[k + 2] = v[k + 2];
        }
        return g;
    }

    void Sumar(Matriz6& A, std::size_t i) const {
        const Barra b = BarraDe(i);
        const Matriz6 k = RigidezLocal(b.L);
        const std::size_t base = 3 * i - 3;
        for (std::size_t q = 0; q < 6; ++q) {
            std::vector<double> unidad(6, 0);
            unidad[q] = 1;
            const std::vector<double> local = Girar(b, unidad, -1);
            std::vector<double> fuerza(6, 0);
            for (std::size_t p = 0; p < 6; ++p)
                for (std::size_t m = 0; m < 6; ++m) fuerza[p] += k[p][m] * local[m];
            const std::vector<double> global = Girar(b, fuerza, 1);
            for (std::size_t p = 0; p < 6; ++p) A[base + p][base + q] += global[p];
        }
        const std::vector<double> f = Girar(b, CargaLocal(i), 1);
        for (std::size_t p = 0; p < 6; ++p) A[base + p].back() += f[p];
    }

    static void Suprimir(Matriz6& A, std::size_t r) {
        for (auto& fila : A) fila[r] = 0;
        std::fill(A[r].begin(), A[r].end(), 0);
        A[r][r] = 1;
    }

    static std::vector<double> Gauss(Matriz6& A) {
        const std::size_t n = A.size();
        for (std::size_t k = 0; k < n; ++k) {
            std::size_t mayor = k;
            for (std::size_t r = k + 1; r < n; ++r)
                if (std::fabs(A[r][k]) > std::fabs(A[mayor][k])) mayor = r;
            std::swap(A[k], A[mayor]);
            for (std::size_t r = k + 1; r < n; ++r) {
                const double m = A[r][k] / A[k][k];
                for (std::size_t c = k; m != 0 && c <= n; ++c) A[r][c] -= m * A[k][c];
            }
        }
        std::vector<double> d(n);
        for (std::size_t k = n; k-- > 0;) {
            d[k] = A[k][n];
            for (std::size_t c = k + 1; c < n; ++c) d[k] -= A[k][c] * d[c];
            d[k] /= A[k][k];
        }
        return d;
    }

    Extremos Extremo(const std::vector<double>& d, std::size_t i) const {
        const Barra b = BarraDe(i);
        const auto desde = d.begin() + static_cast<std::ptrdiff_t>(3 * i - 3);
        const std::vector<double> u = Girar(b, std::vector<double>(desde, desde + 6), -1);
        const Matriz6 k = RigidezLocal(b.L);
        std::vector<double> f = CargaLocal(i);
        for (std::size_t p = 0; p < 6; ++p) {
            f[p] = -f[p];
            for (std::size_t m = 0; m < 6; ++m) f[p] += k[p][m] * u[m];
        }
        return {-f[2], f[1], -f[0], f[5], f[4], f[3]};
    }

    const Losa& losa_;
    bool variable_;
    double EA_, EI_;
    std::vector<double> x_, y_;
};

}  // namespace trabex::prueba
