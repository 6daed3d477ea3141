#include "slab/Banda.h"

namespace trabex {

namespace {

/// Band of a chain of bars with three degrees of freedom a joint: known when compiling, its loops unroll.
constexpr std::size_t AnchoCadena = 6;

/// Eliminates row r: its entries become the factors of U, its diagonal the inverse of D (0 when D is 0).
inline void EliminarFila(double* fila, std::size_t B) {
    const double pivote = fila[0];
    const double inverso = pivote == 0 ? 0 : 1 / pivote;
    for (std::size_t i = 1; i < B; ++i) {
        const double factor = fila[i] * inverso;
        double* abajo = fila + i * B;
        for (std::size_t j = i; j < B; ++j) abajo[j - i] -= factor * fila[j];
    }
    fila[0] = inverso;
    for (std::size_t i = 1; i < B; ++i) fila[i] *= inverso;
}

inline void Factorizar(double* K, std::size_t NDOF, std::size_t B) {
    for (std::size_t r = 0; r < NDOF; ++r) EliminarFila(K + r * B, B);
}

/// F := Uᵀ⁻¹·F. The rows past NDOF are zero, and so are their factors.
inline void SustituirAdelante(const double* K, ParDeCasos* F, std::size_t NDOF, std::size_t B) {
    for (std::size_t r = 0; r < NDOF; ++r) {
        const double* fila = K + r * B;
        const std::size_t fin = B < NDOF - r ? B : NDOF - r;
        for (std::size_t i = 1; i < fin; ++i) {
            F[r + i][0] -= fila[i] * F[r][0];
            F[r + i][1] -= fila[i] * F[r][1];
        }
    }
}

/// One term of D⁻¹·F, where `inverso` is 0 for a pivot of 0.
inline double DividirPorPivote(double carga, double inverso) {
    if (inverso == 0 && carga != 0) return carga / inverso;
    return carga * inverso;
}

/// F := U⁻¹·D⁻¹·F.
inline void SustituirAtras(const double* K, ParDeCasos* F, std::size_t NDOF, std::size_t B) {
    for (std::size_t r = NDOF; r-- > 0;) {
        const double* fila = K + r * B;
        const std::size_t fin = B < NDOF - r ? B : NDOF - r;
        ParDeCasos d{DividirPorPivote(F[r][0], fila[0]), DividirPorPivote(F[r][1], fila[0])};
        for (std::size_t i = 1; i < fin; ++i) {
            d[0] -= fila[i] * F[r + i][0];
            d[1] -= fila[i] * F[r + i][1];
        }
        F[r] = d;
    }
}

inline void Resolver(double* K, ParDeCasos* F, std::size_t NDOF, std::size_t B) {
    Factorizar(K, NDOF, B);
    SustituirAdelante(K, F, NDOF, B);
    SustituirAtras(K, F, NDOF, B);
}

}  // namespace

void EnsamblaM(MatrizBanda& K, const MatrizElemento& ke, std::size_t offsetA, std::size_t offsetB) {
    for (std::size_t p = 0; p < 6; ++p) {
        const std::size_t r = (p < 3 ? offsetA + p : offsetB + p - 3) + 1;
        for (std::size_t q = 0; q < 6; ++q) {
            const std::size_t c = (q < 3 ? offsetA + q : offsetB + q - 3) + 1;
            if (r <= c) K(r, c - r + 1) += ke[p][q];
        }
    }
}

void CalculoDPZ(MatrizBanda& K, std::span<ParDeCasos> F, std::size_t NDOF, std::size_t B) {
    if (B == AnchoCadena)
        Resolver(K.Fila(1), F.data(), NDOF, AnchoCadena);
    else
        Resolver(K.Fila(1), F.data(), NDOF, B);
}

}  // namespace trabex
