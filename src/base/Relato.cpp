#include "base/Relato.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <string_view>

namespace trabex {

namespace {

/// A formula with what its braces hold passed through `decir`.
template <class Decir>
std::string Sustituido(std::string_view formula, Decir decir) {
    std::string texto;
    while (true) {
        const std::size_t abre = formula.find('{');
        texto += formula.substr(0, abre);
        if (abre == std::string_view::npos) return texto;
        const std::size_t cierra = formula.find('}', abre);
        texto += decir(formula.substr(abre + 1, cierra - abre - 1));
        formula.remove_prefix(cierra + 1);
    }
}

}  // namespace

std::string CincoCifras(double valor) {
    if (!std::isfinite(valor)) return "-";
    const int enteras = valor == 0 ? 0 : static_cast<int>(std::floor(std::log10(std::fabs(valor))));
    const int decimales = std::clamp(4 - enteras, 0, 9);
    std::array<char, 400> letras{};
    std::snprintf(letras.data(), letras.size(), "%.*f", decimales, valor);
    std::string texto = letras.data();
    if (decimales > 0) {
        texto.erase(texto.find_last_not_of('0') + 1);
        if (texto.back() == '.') texto.pop_back();
    }
    return texto == "-0" ? "0" : texto;
}

void Relatar(Relato& relato, const char* simbolo, const char* formula,
             std::initializer_list<Cantidad> cantidades, double valor, const char* unidad) {
    PasoDeDiseno paso{simbolo, "", "", valor, unidad};
    paso.Formula = Sustituido(formula, [](std::string_view nombre) { return std::string(nombre); });
    if (cantidades.size() > 0)
        paso.ConNumeros = Sustituido(formula, [&](std::string_view nombre) {
            const auto* cual =
                std::find_if(cantidades.begin(), cantidades.end(),
                             [&](const Cantidad& cantidad) { return cantidad.Simbolo == nombre; });
            if (cual == cantidades.end()) return std::string(nombre);
            const std::string numero = CincoCifras(cual->Valor);
            return numero.front() == '-' ? "(" + numero + ")" : numero;
        });
    relato.push_back(std::move(paso));
}

}  // namespace trabex
