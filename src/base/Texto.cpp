#include "base/Texto.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>

namespace trabex {

namespace {

/// Bytes of the UTF-8 character that begins at `i`; 0 when none does (RFC 3629: no overlong forms, no halves
/// of a surrogate pair, nothing past U+10FFFF).
std::size_t LargoDeCaracter(std::string_view texto, std::size_t i) {
    const auto byte = [&](std::size_t k) {
        return i + k < texto.size() ? static_cast<unsigned char>(texto[i + k]) : 0U;
    };
    const unsigned primero = byte(0);
    if (primero < 0x80) return 1;
    if (primero < 0xC2 || primero > 0xF4) return 0;
    const std::size_t largo = primero < 0xE0 ? 2 : primero < 0xF0 ? 3 : 4;
    const unsigned menor = primero == 0xE0 ? 0xA0 : primero == 0xF0 ? 0x90 : 0x80;
    const unsigned mayor = primero == 0xED ? 0x9F : primero == 0xF4 ? 0x8F : 0xBF;
    if (byte(1) < menor || byte(1) > mayor) return 0;
    for (std::size_t k = 2; k < largo; ++k) {
        if ((byte(k) & 0xC0) != 0x80) return 0;
    }
    return largo;
}

}  // namespace

std::size_t NumeroDeCaracteres(std::string_view texto) {
    return static_cast<std::size_t>(
        std::count_if(texto.begin(), texto.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

std::string TextoValido(std::string_view texto) {
    std::string salida;
    for (std::size_t i = 0; i < texto.size();) {
        const std::size_t largo = LargoDeCaracter(texto, i);
        salida += largo != 0 ? texto.substr(i, largo) : std::string_view("\xEF\xBF\xBD");
        i += std::max<std::size_t>(largo, 1);
    }
    return salida;
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
