#include "drawing/losa/GruposDeTramos.h"

#include <algorithm>

namespace trabex::dibujo::losa {

namespace {

constexpr std::size_t TramosPorHoja = 10;
constexpr double ValoresPorRenglon = 14;  // that find room side by side along a sheet's slab
constexpr std::size_t RenglonesLegibles = 3;

/// Lines on which the values at the axes of a group must stand not to meet.
std::size_t Renglones(const losas::Losa& losa, const GrupoDeTramos& grupo) {
    double longitud = 0;
    for (std::size_t i = grupo.Primero; i <= grupo.Ultimo; ++i) longitud += losa.Tramos[i].LT;
    const double ancho = longitud / ValoresPorRenglon;
    std::vector<double> finales{ancho};
    double x = 0;
    for (std::size_t i = grupo.Primero; i <= grupo.Ultimo; ++i) {
        x += losa.Tramos[i].LT;
        const auto libre = std::find_if(finales.begin(), finales.end(), [&](double fin) { return x >= fin; });
        if (libre == finales.end())
            finales.push_back(x + ancho);
        else
            *libre = x + ancho;
    }
    return finales.size();
}

}  // namespace

std::vector<GrupoDeTramos> GruposDeTramos(const losas::Losa& losa) {
    const std::size_t N = losas::NumeroTramos(losa);
    std::vector<GrupoDeTramos> grupos;
    if (N == 0) return grupos;
    const std::size_t hojas = (N + TramosPorHoja - 1) / TramosPorHoja;
    const std::size_t tope = (N + hojas - 1) / hojas;  // no last sheet with one span alone
    for (std::size_t primero = 1; primero <= N; primero = grupos.back().Ultimo + 1) {
        GrupoDeTramos grupo{primero, primero};
        const std::size_t hasta = std::min(N, primero + tope - 1);
        while (grupo.Ultimo < hasta && Renglones(losa, {primero, grupo.Ultimo + 1}) <= RenglonesLegibles)
            ++grupo.Ultimo;
        grupos.push_back(grupo);
    }
    return grupos;
}

std::size_t HojasDe(const losas::Losa& losa) {
    return std::max<std::size_t>(1, GruposDeTramos(losa).size());
}

std::string NumeroDeHoja(std::size_t hoja, std::size_t hojas) {
    return hojas > 1 ? "HOJA " + std::to_string(hoja) + " DE " + std::to_string(hojas) : "";
}

}  // namespace trabex::dibujo::losa
