#pragma once

#include <initializer_list>
#include <string>
#include <vector>

namespace trabex {

/// A step of a design as whoever approves it reads it: the formula in symbols, the same with numbers, and its
/// value.
///     As = Mu/(Fy·j·d) = 340200/(4200·0.946·17.5) = 4.891 cm²
struct PasoDeDiseno {
    std::string Simbolo;
    std::string Formula;     ///< empty for what is only told
    std::string ConNumeros;  ///< empty where the formula has none
    double Valor = 0;
    std::string Unidad;
};

using Relato = std::vector<PasoDeDiseno>;

/// A quantity of a formula, by its symbol.
struct Cantidad {
    const char* Simbolo;
    double Valor;
};

/// Adds a step: in `formula` each symbol of `cantidades` stands between braces, "{Mu}/({b}·{d}²)".
void Relatar(Relato& relato, const char* simbolo, const char* formula,
             std::initializer_list<Cantidad> cantidades, double valor, const char* unidad);

/// A number with five figures, without those that say nothing: "0.0171", "17.5", "340200".
std::string CincoCifras(double valor);

}  // namespace trabex
