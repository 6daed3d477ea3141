#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <vector>

namespace trabex {

/// Upper band of a symmetric matrix, by rows: K(r, 1) is the diagonal and K(r, c) the entry in column r + c
/// − 1. Rows and band columns count from 1; everything starts at zero.
class MatrizBanda {
  public:
    MatrizBanda(std::size_t filas, std::size_t ancho) : ancho_(ancho), valores_(filas * ancho) {}

    double& operator()(std::size_t r, std::size_t c) { return valores_[(r - 1) * ancho_ + (c - 1)]; }
    double operator()(std::size_t r, std::size_t c) const { return valores_[(r - 1) * ancho_ + (c - 1)]; }
    double* Fila(std::size_t r) { return &valores_[(r - 1) * ancho_]; }

  private:
    std::size_t ancho_;
    std::vector<double> valores_;
};

/// Stiffness of a bar in global axes: (X, Y, rotation) at joint a, then at joint b.
using MatrizElemento = std::array<std::array<double, 6>, 6>;

/// The two load cases of one degree of freedom, side by side.
using ParDeCasos = std::array<double, 2>;

/// Adds a bar's stiffness to K. Local rows 1 to 3 go to offsetA + 1 … offsetA + 3, local rows 4 to 6 to
/// offsetB + 1 … offsetB + 3; what falls below the diagonal is not stored.
void EnsamblaM(MatrizBanda& K, const MatrizElemento& ke, std::size_t offsetA, std::size_t offsetB);

/// Solves K·d = F for both load cases with one factorisation, K = UᵀDU in the band (Gaussian elimination of a
/// symmetric matrix, no pivoting). K (NDOF + B rows, band B) is overwritten; F comes in as the
/// loads of degrees of freedom 1 … NDOF and goes out as the displacements.
///
/// K is positive definite for a stable structure, and nothing tests for that. A direction whose stiffness
/// vanishes exactly and that carries no load stays where it is; under a load it divides by zero.
void CalculoDPZ(MatrizBanda& K, std::span<ParDeCasos> F, std::size_t NDOF, std::size_t B);

}  // namespace trabex
