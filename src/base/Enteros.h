#pragma once

#include <cstdint>
#include <limits>

#include "base/ErrorEjecucion.h"
#include "base/Round.h"

namespace trabex {

/// A whole number as a 16- or 32-bit quantity (`Entero` is the target type).
/// Throws ErrorEjecucion 6 (overflow) when it does not fit.
template <class Entero>
Entero Estrechar(std::int64_t valor) {
    if (valor < std::numeric_limits<Entero>::min() || valor > std::numeric_limits<Entero>::max())
        throw ErrorEjecucion(CodigoError::Desbordamiento);
    return static_cast<Entero>(valor);
}

/// A number rounded half to even to a 16- or 32-bit quantity. Throws ErrorEjecucion 6 when it does not fit.
template <class Entero>
Entero EstrecharRedondeando(double valor) {
    const double entero = Round(valor);
    if (!(entero >= std::numeric_limits<Entero>::min() && entero <= std::numeric_limits<Entero>::max()))
        throw ErrorEjecucion(CodigoError::Desbordamiento);
    return static_cast<Entero>(entero);
}

inline std::int16_t Entero16(std::int64_t valor) {
    return Estrechar<std::int16_t>(valor);
}
inline std::int32_t Entero32(std::int64_t valor) {
    return Estrechar<std::int32_t>(valor);
}
inline std::int16_t Redondear16(double valor) {
    return EstrecharRedondeando<std::int16_t>(valor);
}
inline std::int32_t Redondear32(double valor) {
    return EstrecharRedondeando<std::int32_t>(valor);
}

}  // namespace trabex
