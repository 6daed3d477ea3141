#pragma once

#include <array>
#include <cstddef>

namespace trabex::losas {

/// The two load cases of one quantity, side by side: permanent, live. What is the same for both is written
/// once, and one vector instruction does both.
using ParDeCasos = std::array<double, 2>;

inline ParDeCasos operator+(const ParDeCasos& a, const ParDeCasos& b) {
    return {a[0] + b[0], a[1] + b[1]};
}
inline ParDeCasos operator-(const ParDeCasos& a, const ParDeCasos& b) {
    return {a[0] - b[0], a[1] - b[1]};
}
inline ParDeCasos operator*(double k, const ParDeCasos& a) {
    return {k * a[0], k * a[1]};
}
inline ParDeCasos& operator+=(ParDeCasos& a, const ParDeCasos& b) {
    return a = a + b;
}
inline ParDeCasos& operator-=(ParDeCasos& a, const ParDeCasos& b) {
    return a = a - b;
}

}  // namespace trabex::losas
