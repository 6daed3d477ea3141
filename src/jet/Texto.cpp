#include "jet/Texto.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "base/Texto.h"

namespace trabex::jet {

namespace {

constexpr char32_t Desconocido = 0xFFFD;

void Unidad(std::string& texto, std::uint32_t unidad) {
    texto += static_cast<char>(unidad & 0xFF);
    texto += static_cast<char>(unidad >> 8);
}

void EnUtf8(std::string& texto, char32_t caracter) {
    if (caracter < 0x80) {
        texto += static_cast<char>(caracter);
        return;
    }
    const int siguen = caracter < 0x800 ? 1 : caracter < 0x10000 ? 2 : 3;
    texto += static_cast<char>((0xFF00 >> (siguen + 1) & 0xFF) | caracter >> 6 * siguen);
    for (int i = siguen - 1; i >= 0; --i) texto += static_cast<char>(0x80 | (caracter >> 6 * i & 0x3F));
}

/// UTF-16 of a text that may be compressed: a byte a character, and a zero where that starts or ends.
std::string Extendido(std::string_view bytes) {
    if (!bytes.starts_with("\xFF\xFE")) return std::string(bytes);
    std::string texto;
    bool corto = true;
    for (std::size_t i = 2; i < bytes.size(); ++i) {
        if (bytes[i] == 0)
            corto = !corto;
        else if (corto)
            texto.append(1, bytes[i]).append(1, '\0');
        else
            texto.append(bytes.substr(i++, 2));
    }
    return texto;
}

/// From 0 and from A on.
constexpr std::array<std::uint8_t, 10> Cifras{54, 56, 58, 60, 62, 64, 66, 68, 70, 72};
constexpr std::array<std::uint8_t, 26> Letras{74, 76,  77,  79,  81,  83,  85,  87,  89,  91,  92,  94,  96,
                                              98, 100, 102, 104, 105, 107, 109, 111, 113, 115, 117, 118, 120};

}  // namespace

std::string ComoUtf16(std::string_view utf8) {
    std::string texto;
    while (!utf8.empty()) {
        const char32_t caracter = TomarCaracter(utf8);
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

std::string Descomprimido(std::string_view bytes) {
    const std::string todo = Extendido(bytes);
    const auto unidad = [&todo](std::size_t i) -> char32_t {
        if (i + 1 >= todo.size()) return Desconocido;
        return static_cast<unsigned char>(todo[i]) | char32_t{static_cast<unsigned char>(todo[i + 1])} << 8;
    };
    std::string texto;
    for (std::size_t i = 0; i < todo.size(); i += 2) {
        char32_t caracter = unidad(i);
        const char32_t segunda = unidad(i + 2);
        if (caracter >= 0xD800 && caracter < 0xE000) {
            const bool pareja = caracter < 0xDC00 && segunda >= 0xDC00 && segunda < 0xE000;
            caracter = pareja ? 0x10000 + ((caracter - 0xD800) << 10) + (segunda - 0xDC00) : Desconocido;
            if (pareja) i += 2;
        }
        EnUtf8(texto, caracter);
    }
    return texto;
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
