#pragma once

#include <array>
#include <initializer_list>
#include <random>
#include <string>
#include <vector>

#include "slab/Losa.h"

namespace trabex::prueba {

using namespace losas;

/// Spans on a pin and then rollers, with the same loads throughout.
inline Losa LosaContinua(std::initializer_list<double> luces, std::int32_t Wp, std::int32_t WV = 0) {
    Losa losa;
    losa.Nombre = "PRUEBA";
    for (const double luz : luces) losa.Tramos.push_back({luz, Wp, WV, 0, 0});
    for (std::size_t j = 1; j <= luces.size() + 1; ++j)
        losa.Ejes.push_back({std::to_string(j), j == 1 ? ApoyoFijo : RodilloEnX, 0, 0, 0});
    return losa;
}

inline Losa LosaUniforme(std::size_t tramos, double luz, std::int32_t Wp, std::int32_t WV = 0) {
    Losa losa;
    for (std::size_t i = 0; i < tramos; ++i) losa.Tramos.push_back({luz, Wp, WV, 0, 0});
    for (std::size_t j = 1; j <= tramos + 1; ++j)
        losa.Ejes.push_back({std::to_string(j), j == 1 ? ApoyoFijo : RodilloEnX, 0, 0, 0});
    return losa;
}

/// A slab as engineers draw them: 1 to 8 spans of 2 to 8 m, supports of every kind that keep it stable,
/// loads, interior point loads and, where asked, joints shifted along X and Y.
inline Losa LosaAlAzar(std::mt19937& azar, bool desplazada) {
    const auto entre = [&](double a, double b) { return std::uniform_real_distribution<>(a, b)(azar); };
    const auto entero = [&](int a, int b) { return std::uniform_int_distribution<>(a, b)(azar); };
    Losa losa;
    losa.OpcionMaciza = entero(0, 1) == 1;
    const int tramos = entero(1, 8);
    for (int i = 0; i < tramos; ++i) {
        Tramo tramo{entre(2, 8), entero(50, 900), entero(0, 500), 0, 0};
        if (entero(0, 2) == 0) {
            tramo.p1 = entero(100, 3000);
            tramo.L1 = tramo.LT * entre(0.05, 0.95);
        }
        losa.Tramos.push_back(tramo);
    }
    losa.Ejes.push_back({"1", ApoyoFijo, 0, 0, 0});
    for (int j = 2; j <= tramos + 1; ++j) {
        const std::int16_t tipo = entero(0, 5) == 0 ? Empotramiento : RodilloEnX;
        losa.Ejes.push_back({std::to_string(j), tipo, 0, 0, 0});
    }
    if (tramos > 2 && entero(0, 2) == 0) losa.Ejes.back().Tipo = SinApoyo;  // cantilever
    for (int k = entero(1, 3); desplazada && k > 0; --k)
        losa.JuntasD.push_back(
            {static_cast<std::int16_t>(entero(1, tramos + 1)), entre(-0.3, 0.3), entre(-1, 1)});
    return losa;
}

/// A slab of the given support types with spans of 0.8 to 7 m and a point load in every place that it can
/// have: none, inside, over either joint, past the span.
inline Losa LosaDeTipos(std::mt19937& azar, const std::vector<std::int16_t>& tipos, bool desplazada) {
    const auto entre = [&](double a, double b) { return std::uniform_real_distribution<>(a, b)(azar); };
    const auto entero = [&](int a, int b) { return std::uniform_int_distribution<>(a, b)(azar); };
    Losa losa;
    losa.OpcionMaciza = entero(0, 1) == 1;
    for (std::size_t i = 1; i < tipos.size(); ++i) {
        Tramo tramo{entre(0.8, 7), entero(50, 900), entero(0, 500), entero(100, 3000), 0};
        const std::array<double, 5> lugares{0, tramo.LT, tramo.LT * entre(0.05, 0.95), tramo.LT + 0.1, 0};
        const int lugar = entero(0, 4);
        tramo.L1 = lugares[static_cast<std::size_t>(lugar)];
        if (lugar == 4) tramo.p1 = 0;
        losa.Tramos.push_back(tramo);
    }
    for (std::size_t j = 1; j <= tipos.size(); ++j)
        losa.Ejes.push_back({std::to_string(j), tipos[j - 1], 0, 0, 0});
    for (int k = 0; desplazada && k < 2; ++k)
        losa.JuntasD.push_back({static_cast<std::int16_t>(entero(1, static_cast<int>(tipos.size()))),
                                entre(-0.3, 0.3), entre(-1, 1)});
    return losa;
}

}  // namespace trabex::prueba
