#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace trabex {

namespace redondeo {

inline constexpr std::array<double, 16> Potencias{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                  1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
inline constexpr double SinFraccion = 6755399441055744.0;  // 1.5·2^52: a sum with it has no fraction bit
inline constexpr double Limite = 2251799813685248.0;       // 2^51

inline double AlEntero(double valor) {
    return (valor + SinFraccion) - SinFraccion;
}

/// `valor` scaled; from the limit on, where it has no decimals, something past the limit that can't overflow.
inline double Escalar(double valor, double factor) {
    return std::min(std::max(valor, -Limite), Limite) * factor;
}

}  // namespace redondeo

/// The value nearest to `valor` with `decimales` decimals (0 to 15), halves to the even neighbour.
///
/// The scaled value is rounded by adding and taking away 1.5·2^52: the processor's own half-to-even rounding,
/// without a call. A value so large that it has no such decimals comes back unchanged and raises no
/// floating-point fault; infinities and NaN come back too.
inline double Round(double valor, int decimales = 0) {
    const double factor = redondeo::Potencias[static_cast<std::size_t>(decimales)];
    const double escalado = redondeo::Escalar(valor, factor);
    const double redondeado = redondeo::AlEntero(escalado) / factor;
    return std::fabs(escalado) < redondeo::Limite ? redondeado : valor;
}

/// Round on each of several values, in the shape that compilers turn into vector instructions.
template <std::size_t N>
void RoundTodos(std::array<double, N>& valores, int decimales) {
    const double factor = redondeo::Potencias[static_cast<std::size_t>(decimales)];
    std::array<double, N> escalados;
    std::array<double, N> redondeados;
    for (std::size_t k = 0; k < N; ++k) escalados[k] = redondeo::Escalar(valores[k], factor);
    for (std::size_t k = 0; k < N; ++k) redondeados[k] = redondeo::AlEntero(escalados[k]) / factor;
    for (std::size_t k = 0; k < N; ++k) {
        if (std::fabs(escalados[k]) < redondeo::Limite) valores[k] = redondeados[k];
    }
}

}  // namespace trabex
