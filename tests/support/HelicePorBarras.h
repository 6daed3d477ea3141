#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

#include "support/EjeHelice.h"

namespace trabex::prueba {

/// A helical stair solved as a chain of straight bars in space, by the direct stiffness method: bending about
/// both axes and torsion, of stiffness 2·E·I1·I2/(I1 + I2); all but rigid axially. Loads go to the joints.
class HelicePorBarras {
  public:
    HelicePorBarras(const DatosEscaleraH& e, std::size_t barras) : eje_(e), n_(barras), W_(e.W) {
        const double I1 = e.B * std::pow(e.T, 3) / 12;
        const double I2 = e.T * std::pow(e.B, 3) / 12;
        EI1_ = I1 / I2;
        EI2_ = 1;
        GJ_ = 2 * EI1_ * EI2_ / (EI1_ + EI2_);
        EA_ = 1e7;
        Resolver();
    }

    double Angulo(std::size_t nodo) const {
        return -eje_.fi + 2 * eje_.fi * static_cast<double>(nodo) / static_cast<double>(n_);
    }

    /// At an interior joint: the mean of the sections before and after its load.
    Accion En(std::size_t nodo) const {
        const Vector12 antes = ExtremosDe(nodo - 1);
        const Vector12 despues = ExtremosDe(nodo);
        Accion accion;
        for (std::size_t k = 0; k < 3; ++k) {
            accion.F[k] = (despues[k] - antes[6 + k]) / 2;
            accion.M[k] = (despues[3 + k] - antes[9 + k]) / 2;
        }
        return accion;
    }

  private:
    using Vector12 = std::array<double, 12>;
    using Matriz12 = std::array<Vector12, 12>;
    static constexpr std::size_t Banda = 12;

    /// Stiffness of bar i in global axes.
    Matriz12 Rigidez(std::size_t i) const {
        const Vector3 a = eje_.Posicion(Angulo(i));
        const Vector3 b = eje_.Posicion(Angulo(i + 1));
        const double L = std::sqrt(Punto(b - a, b - a));
        const Vector3 x = (1 / L) * (b - a);
        const Vector3 y = eje_.Radial((Angulo(i) + Angulo(i + 1)) / 2);
        const std::array<Vector3, 3> ejes{x, y, Cruz(x, y)};
        Matriz12 k{};
        const auto par = [&](std::size_t p, double valor) {
            k[p][p] += valor, k[p + 6][p + 6] += valor;
            k[p][p + 6] -= valor, k[p + 6][p] -= valor;
        };
        par(0, EA_ / L);
        par(3, GJ_ / L);
        // Bending about z moves y, and about y moves z with the other sign.
        for (const auto& [v, g, EI, s] : {std::tuple{1U, 5U, EI2_, 1.0}, std::tuple{2U, 4U, EI1_, -1.0}}) {
            par(v, 12 * EI / (L * L * L));
            for (const std::size_t giro : {g, g + 6}) {
                const double acople = s * 6 * EI / (L * L);
                k[v][giro] += acople, k[giro][v] += acople;
                k[v + 6][giro] -= acople, k[giro][v + 6] -= acople;
                k[giro][giro] += 4 * EI / L;
            }
            k[g][g + 6] += 2 * EI / L, k[g + 6][g] += 2 * EI / L;
        }
        Matriz12 global{};
        for (std::size_t p = 0; p < 12; ++p) {
            for (std::size_t q = 0; q < 12; ++q) {
                double suma = 0;
                for (std::size_t u = 0; u < 3; ++u) {
                    for (std::size_t v = 0; v < 3; ++v)
                        suma += ejes[u][p % 3] * k[p / 3 * 3 + u][q / 3 * 3 + v] * ejes[v][q % 3];
                }
                global[p][q] = suma;
            }
        }
        return global;
    }

    /// Gauss on the symmetric band of the interior joints.
    void Resolver() {
        const std::size_t n = 6 * (n_ - 1);
        std::vector<std::array<double, Banda>> A(n);  // A[i][j − i]
        std::vector<double> b(n);
        for (std::size_t i = 0; i < n_; ++i) {
            const Matriz12 k = Rigidez(i);
            for (std::size_t p = 0; p < 12; ++p) {
                for (std::size_t q = p; q < 12; ++q) {
                    const std::size_t fila = 6 * i + p;
                    const std::size_t columna = 6 * i + q;
                    if (fila >= 6 && columna < n + 6) A[fila - 6][columna - fila] += k[p][q];
                }
            }
        }
        const double P = W_ * eje_.R * 2 * eje_.fi / static_cast<double>(n_);
        for (std::size_t nodo = 1; nodo < n_; ++nodo) {
            const double t = Angulo(nodo);
            const Vector3 F{0, 0, -P};
            const Vector3 M = Cruz(eje_.Carga(t) - eje_.Posicion(t), F);
            for (std::size_t k = 0; k < 3; ++k) {
                b[6 * (nodo - 1) + k] = F[k];
                b[6 * (nodo - 1) + 3 + k] = M[k];
            }
        }
        for (std::size_t i = 0; i < n; ++i) {
            for (std::size_t j = i + 1; j < std::min(n, i + Banda); ++j) {
                const double f = A[i][j - i] / A[i][0];
                for (std::size_t k = j; k < std::min(n, i + Banda); ++k) A[j][k - j] -= f * A[i][k - i];
                b[j] -= f * b[i];
            }
        }
        for (std::size_t i = n; i-- > 0;) {
            for (std::size_t j = i + 1; j < std::min(n, i + Banda); ++j) b[i] -= A[i][j - i] * b[j];
            b[i] /= A[i][0];
        }
        d_.assign(n + 12, 0);
        std::copy(b.begin(), b.end(), d_.begin() + 6);
    }

    /// What the joints of bar i exert on it.
    Vector12 ExtremosDe(std::size_t i) const {
        const Matriz12 k = Rigidez(i);
        Vector12 f{};
        for (std::size_t p = 0; p < 12; ++p) {
            for (std::size_t q = 0; q < 12; ++q) f[p] += k[p][q] * d_[6 * i + q];
        }
        return f;
    }

    EjeHelice eje_;
    std::size_t n_;
    double W_;
    double EI1_, EI2_, GJ_, EA_;
    std::vector<double> d_;
};

}  // namespace trabex::prueba
