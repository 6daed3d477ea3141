#include "jet/Texto.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace trabex::jet {

namespace {

constexpr char32_t Desconocido = 0xFFFD;

/// Takes the first character of a text off it.
char32_t Caracter(std::string_view& utf8) {
    const auto primero = static_cast<unsigned char>(utf8.front());
    utf8.remove_prefix(1);
    if (primero < 0x80) return primero;
    const int siguen = primero >= 0xF0 ? 3 : primero >= 0xE0 ? 2 : primero >= 0xC0 ? 1 : 0;
    if (siguen == 0 || utf8.size() < static_cast<std::size_t>(siguen)) return Desconocido;
    char32_t caracter = primero & (0x3F >> siguen);
    for (int i = 0; i < siguen; ++i) {
        const auto byte = static_cast<unsigned char>(utf8[static_cast<std::size_t>(i)]);
        if ((byte & 0xC0) != 0x80) return Desconocido;
        caracter = caracter << 6 | (byte & 0x3F);
    }
    utf8.remove_prefix(static_cast<std::size_t>(siguen));
    return caracter > 0x10FFFF ? Desconocido : caracter;
}

void Unidad(std::string& texto, std::uint32_t unidad) {
    texto += static_cast<char>(unidad & 0xFF);
    texto += static_cast<char>(unidad >> 8);
}

/// From 0 and from A on.
constexpr std::array<std::uint8_t, 10> Cifras{54, 56, 58, 60, 62, 64, 66, 68, 70, 72};
constexpr std::array<std::uint8_t, 26> Letras{74, 76,  77,  79,  81,  83,  85,  87,  89,  91,  92,  94,  96,
                                              98, 100, 102, 104, 105, 107, 109, 111, 113, 115, 117, 118, 120};

}  // namespace

std::string ComoUtf16(std::string_view utf8) {
    std::string texto;
    while (!utf8.empty()) {
        const char32_t caracter = Caracter(utf8);
        if (caracter >= 0x10000) {
            Unidad(texto, 0xD800 + ((caracter - 0x10000) >> 10));
            Unidad(texto, 0xDC00 + ((caracter - 0x10000) & 0x3FF));
        } else {
            Unidad(texto, caracter);
        }
    }
    return texto;
}

std::string Comprimido(std::string_view utf8) {
    std::string texto = ComoUtf16(utf8);
    std::string corto = "\xFF\xFE";
    for (std::size_t i = 0; i < texto.size(); i += 2) {
        if (texto[i + 1] != 0 || texto[i] == 0) return texto;
        corto += texto[i];
    }
    return corto.size() < texto.size() ? corto : texto;
}

std::string ClaveDeTexto(std::string_view utf8) {
    std::string clave;
    for (const char letra : utf8) {
        if (letra >= '0' && letra <= '9')
            clave += static_cast<char>(Cifras[static_cast<std::size_t>(letra - '0')]);
        const char mayuscula = letra >= 'a' && letra <= 'z' ? static_cast<char>(letra - 'a' + 'A') : letra;
        if (mayuscula >= 'A' && mayuscula <= 'Z')
            clave += static_cast<char>(Letras[static_cast<std::size_t>(mayuscula - 'A')]);
    }
    return clave + '\x01' + '\0';
}

}  // namespace trabex::jet
