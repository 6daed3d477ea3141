#pragma once

#include <array>
#include <cmath>
#include <cstddef>

namespace trabex::prueba {

/// Nodes and weights of Gauss-Legendre on (−1, 1), the roots of P12 by Newton's method in extended precision.
struct NodosDeGauss {
    static constexpr std::size_t Cuantos = 12;

    NodosDeGauss() {
        for (std::size_t i = 0; i < Cuantos; ++i) {
            long double x = std::cos(std::acos(-1.0L) * (static_cast<long double>(i) + 0.75L) /
                                     (static_cast<long double>(Cuantos) + 0.5L));
            long double derivada = 1;
            for (int vez = 0; vez < 20; ++vez) {
                long double p = 1;
                long double q = 0;
                for (std::size_t k = 1; k <= Cuantos; ++k) {
                    const long double n = static_cast<long double>(k);
                    const long double otro = ((2 * n - 1) * x * p - (n - 1) * q) / n;
                    q = p;
                    p = otro;
                }
                derivada = static_cast<long double>(Cuantos) * (x * p - q) / (x * x - 1);
                x -= p / derivada;
            }
            X[i] = x;
            Peso[i] = 2 / ((1 - x * x) * derivada * derivada);
        }
    }
    std::array<long double, Cuantos> X{};
    std::array<long double, Cuantos> Peso{};
};

/// ∫f over (a, b) in `trozos` equal parts, each exact for polynomials of degree 23.
template <class Funcion>
long double Integrar(Funcion f, long double a, long double b, int trozos = 1) {
    static const NodosDeGauss nodos;
    const long double mitad = (b - a) / trozos / 2;
    long double suma = 0;
    for (int k = 0; k < trozos; ++k) {
        const long double centro = a + mitad * (2 * k + 1);
        for (std::size_t i = 0; i < NodosDeGauss::Cuantos; ++i)
            suma += nodos.Peso[i] * f(centro + mitad * nodos.X[i]);
    }
    return suma * mitad;
}

}  // namespace trabex::prueba
