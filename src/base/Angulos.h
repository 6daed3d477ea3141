#pragma once

namespace trabex {

/// π as the formulas of stairs and helices write it, which is not the library's.
inline constexpr double Pi = 3.14159265358979;
inline constexpr double DosPi = 6.28318530717958;

inline double EnRadianes(double grados) {
    return grados * Pi / 180;
}
inline double EnGrados(double radianes) {
    return radianes * 180 / Pi;
}

}  // namespace trabex
