#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

#include "slab/ParDeCasos.h"

namespace trabex::losas {

/// Upper band of a symmetric matrix, by rows of B entries: K(r, 1) is the diagonal and K(r, c) the entry in
/// column r + c − 1. Rows and band columns count from 1; everything starts at zero.
template <std::size_t B>
class MatrizBanda {
  public:
    explicit MatrizBanda(std::size_t filas) : filas_(filas) {}

    double& operator()(std::size_t r, std::size_t c) { return filas_[r - 1][c - 1]; }
    double operator()(std::size_t r, std::size_t c) const { return filas_[r - 1][c - 1]; }
    std::array<double, B>& Fila(std::size_t r) { return filas_[r - 1]; }

  private:
    std::vector<std::array<double, B>> filas_;
};

/// Stiffness of a bar in global axes: (X, Y, rotation) at joint a, then at joint b.
using MatrizElemento = std::array<std::array<double, 6>, 6>;

/// Adds a bar's stiffness to K. Local rows 1 to 3 go to offsetA + 1 … offsetA + 3, local rows 4 to 6 to
/// offsetB + 1 … offsetB + 3, with offsetA < offsetB; what falls below the diagonal is not stored.
template <std::size_t B>
void EnsamblaM(MatrizBanda<B>& K, const MatrizElemento& ke, std::size_t offsetA, std::size_t offsetB) {
    for (std::size_t p = 0; p < 3; ++p) {
        std::array<double, B>& filaA = K.Fila(offsetA + p + 1);
        std::array<double, B>& filaB = K.Fila(offsetB + p + 1);
        for (std::size_t q = p; q < 3; ++q) filaA[q - p] += ke[p][q];
        for (std::size_t q = 0; q < 3; ++q) filaA[offsetB - offsetA + q - p] += ke[p][q + 3];
        for (std::size_t q = p; q < 3; ++q) filaB[q - p] += ke[p + 3][q + 3];
    }
}

/// Eliminates row r + 1 of K, whose entries past `ancho` are zero, with its part of F := Uᵀ⁻¹·F. The row is
/// left as its factors, led by the inverse of its pivot (0 when the pivot is 0).
template <std::size_t B, std::size_t ancho>
void EliminarFila(MatrizBanda<B>& K, std::vector<ParDeCasos>& F, std::size_t r) {
    const std::array<double, B> fila = K.Fila(r + 1);
    const ParDeCasos f = F[r];
    std::array<double, B> factor{};
    factor[0] = fila[0] == 0 ? 0 : 1 / fila[0];
    for (std::size_t i = 1; i < ancho; ++i) factor[i] = fila[i] * factor[0];
    for (std::size_t i = 1; i < ancho; ++i) {
        std::array<double, B>& abajo = K.Fila(r + 1 + i);
        for (std::size_t j = i; j < ancho; ++j) abajo[j - i] -= factor[i] * fila[j];
        F[r + i] -= factor[i] * f;
    }
    K.Fila(r + 1) = factor;
}

/// Eliminates rows desde + 1 … hasta of K, once all has been added to them and to every row that they reach:
/// a support among those, too, is put on the diagonal as it was assembled, not on what elimination left of
/// it.
template <std::size_t B>
void EliminarFilas(MatrizBanda<B>& K, std::vector<ParDeCasos>& F, std::size_t desde, std::size_t hasta) {
    for (std::size_t r = desde; r < hasta; ++r) {
        // Two rows in three of a chain of joints end in zeros, which elimination leaves zero.
        const std::array<double, B>& fila = K.Fila(r + 1);
        if (fila[B - 1] != 0)
            EliminarFila<B, B>(K, F, r);
        else if (fila[B - 2] != 0)
            EliminarFila<B, B - 1>(K, F, r);
        else
            EliminarFila<B, B - 2>(K, F, r);
    }
}

/// Back substitution on an eliminated K: F := U⁻¹·D⁻¹·F.
template <std::size_t B>
void SustituirAtras(MatrizBanda<B>& K, std::vector<ParDeCasos>& F, std::size_t NDOF) {
    for (std::size_t r = NDOF; r-- > 0;) {
        const std::array<double, B>& factor = K.Fila(r + 1);
        ParDeCasos d = factor[0] * F[r];
        if (factor[0] == 0 && F[r] != ParDeCasos{}) d = {F[r][0] / factor[0], F[r][1] / factor[0]};
        for (std::size_t i = B - 1; i > 0; --i) d -= factor[i] * F[r + i];
        F[r] = d;
    }
}

/// A pivot so much smaller than the diagonal that was assembled is what rounding left of it: nothing holds
/// that direction. A chain of a thousand spans on its two ends, or 8 m beside 5 mm, still stays above it.
inline constexpr double PivoteNulo = 1e-10;

/// Rows of an eliminated K, from 1, whose pivot vanishes beside the diagonal that had been assembled there.
template <std::size_t B>
std::vector<std::size_t> FilasSinPivote(const MatrizBanda<B>& K, const std::vector<double>& diagonal) {
    std::vector<std::size_t> filas;
    for (std::size_t r = 1; r <= diagonal.size(); ++r) {
        const double inverso = std::fabs(K(r, 1));
        const double armada = std::fabs(diagonal[r - 1]);
        const bool nulo = inverso == 0 ? std::isfinite(armada) : inverso * PivoteNulo * armada > 1;
        if (nulo) filas.push_back(r);
    }
    return filas;
}

/// Solves K·d = F for both load cases with one factorisation, K = UᵀDU in the band (Gaussian elimination of a
/// symmetric matrix, no pivoting). K has NDOF + B rows and is overwritten. F has as many, zero past NDOF; it
/// comes in as the loads, F[0] being that of degree of freedom 1, and goes out as the displacements. The
/// first `eliminadas` rows have been eliminated already.
///
/// K is positive definite for a stable structure. A direction whose stiffness vanishes exactly and that
/// carries no load stays where it is; under a load it divides by zero.
template <std::size_t B>
void CalculoDPZ(MatrizBanda<B>& K, std::vector<ParDeCasos>& F, std::size_t NDOF, std::size_t eliminadas = 0) {
    EliminarFilas(K, F, eliminadas, NDOF);
    SustituirAtras(K, F, NDOF);
}

}  // namespace trabex::losas
