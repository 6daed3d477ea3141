#include "base/Texto.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>

namespace trabex {

std::size_t NumeroDeCaracteres(std::string_view texto) {
    return static_cast<std::size_t>(
        std::count_if(texto.begin(), texto.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

std::string Mayusculas(std::string texto) {
    // In Latin-1's half of UTF-8, C3 A0 … C3 BE, the capitals lie 0x20 below; C3 B7 is the division sign.
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const auto byte = static_cast<unsigned char>(texto[i]);
        const bool deDos = i > 0 && static_cast<unsigned char>(texto[i - 1]) == 0xC3;
        if (deDos && byte >= 0xA0 && byte <= 0xBE && byte != 0xB7)
            texto[i] = static_cast<char>(byte - 0x20);
        else if (byte < 0x80)
            texto[i] = static_cast<char>(std::toupper(byte));
    }
    return texto;
}

std::string Recortar(std::string_view texto) {
    const std::size_t inicio = texto.find_first_not_of(' ');
    if (inicio == std::string_view::npos) return {};
    return std::string(texto.substr(inicio, texto.find_last_not_of(' ') - inicio + 1));
}

std::optional<double> NumeroDeTexto(std::string_view texto) {
    std::string cifras = Recortar(texto);
    std::replace(cifras.begin(), cifras.end(), ',', '.');
    if (cifras.starts_with('+') && !cifras.starts_with("+-")) cifras.erase(0, 1);
    double valor = 0;
    const char* fin = cifras.data() + cifras.size();
    const auto [hasta, error] = std::from_chars(cifras.data(), fin, valor);
    if (error != std::errc{} || hasta != fin || !std::isfinite(valor)) return std::nullopt;
    return valor;
}

}  // namespace trabex
