#pragma once

#include <cstdint>
#include <functional>

namespace trabex::cargas {

/// A source of random numbers in [0, 1).
using FuenteAzar = std::function<double()>;

/// One that differs from run to run.
FuenteAzar AzarDelSistema();

/// Whether a creating window goes on after its search for the typed description: only when the search has
/// found one. Otherwise it says that the record exists already, and creates nothing.
constexpr bool SigueLaCreacion(bool encontrada) {
    return encontrada;
}

/// The number of an analysis for a random one: 1 to 9001, halves to the even neighbour.
std::int32_t NumeroDeAnalisis(double azar);

/// The number of a new analysis of the project. It is drawn a second time, and then not looked for, when
/// `encontrado` does not find the first: the same sense as the search for a description.
std::int32_t NumeroNuevo(const FuenteAzar& azar, const std::function<bool(std::int32_t)>& encontrado);

}  // namespace trabex::cargas
