#pragma once

#include <array>
#include <cmath>
#include <cstddef>

namespace trabex {

/// The value nearest to `valor` with `decimales` decimals (0 to 15), halves to the even neighbour.
///
/// The scaled value is rounded by adding and taking away 1.5·2^52, which leaves no room for a fraction bit;
/// it is the processor's own half-to-even rounding, without a call. A value so large that it has no such
/// decimals comes back unchanged, and so do infinities and NaN.
inline double Round(double valor, int decimales = 0) {
    constexpr std::array<double, 16> potencia{1e0, 1e1, 1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                              1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14, 1e15};
    constexpr double sinFraccion = 6755399441055744.0;
    constexpr double limite = 2251799813685248.0;
    const double factor = potencia[static_cast<std::size_t>(decimales)];
    const double escalado = valor * factor;
    const double redondeado = ((escalado + sinFraccion) - sinFraccion) / factor;
    return std::fabs(escalado) < limite ? redondeado : valor;
}

}  // namespace trabex
