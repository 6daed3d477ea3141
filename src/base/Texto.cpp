#include "base/Texto.h"

#include <algorithm>
#include <cctype>

namespace trabex {

std::size_t NumeroDeCaracteres(std::string_view texto) {
    return static_cast<std::size_t>(
        std::count_if(texto.begin(), texto.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

char32_t TomarCaracter(std::string_view& resto) {
    constexpr char32_t reemplazo = 0xFFFD;
    const auto primero = static_cast<unsigned char>(resto.front());
    const std::size_t largo = primero < 0x80   ? 1
                              : primero < 0xC2 ? 0
                              : primero < 0xE0 ? 2
                              : primero < 0xF0 ? 3
                              : primero < 0xF5 ? 4
                                               : 0;
    char32_t caracter = largo < 2 ? primero : primero & (0xFFU >> (largo + 1));
    bool sano = largo > 0 && largo <= resto.size();
    for (std::size_t i = 1; sano && i < largo; ++i) {
        const auto byte = static_cast<unsigned char>(resto[i]);
        sano = (byte & 0xC0) == 0x80;
        caracter = caracter << 6 | (byte & 0x3FU);
    }
    const bool corto = (largo == 3 && caracter < 0x800) || (largo == 4 && caracter < 0x10000);
    if (!sano || corto || caracter > 0x10FFFF || (caracter >= 0xD800 && caracter < 0xE000)) {
        resto.remove_prefix(1);
        return reemplazo;
    }
    resto.remove_prefix(largo);
    return caracter;
}

bool EsLlano(std::string_view texto, std::string_view salvo) {
    for (const char c : texto) {
        if (c < 0x20 || c >= 0x7F) return false;
        for (const char otra : salvo)
            if (c == otra) return false;
    }
    return true;
}

std::string TextoValido(std::string_view texto) {
    if (EsLlano(texto, {})) return std::string(texto);
    std::string salida;
    salida.reserve(texto.size());
    while (!texto.empty()) {
        const std::string_view antes = texto;
        const bool sano = TomarCaracter(texto) != 0xFFFD;
        salida += sano ? antes.substr(0, antes.size() - texto.size()) : std::string_view("\xEF\xBF\xBD");
    }
    return salida;
}

std::string TextoImprimible(std::string_view texto) {
    std::string salida = TextoValido(texto);
    std::replace_if(
        salida.begin(), salida.end(), [](unsigned char c) { return (c < 0x20 && c != '\n') || c == 0x7F; },
        ' ');
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

}  // namespace trabex
