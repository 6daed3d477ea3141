#include "base/Formatos.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdio>

namespace trabex {

namespace {

/// The digits of |valor| with `decimales` decimals, without separators: "1234567" is 12345.67 at 2 decimals.
std::string DigitosRedondeados(double valor, int decimales) {
    constexpr int significativos = 15;
    std::array<char, 40> texto{};
    const auto fin = std::to_chars(texto.data(), texto.data() + texto.size(), std::fabs(valor),
                                   std::chars_format::scientific, significativos - 1);
    std::string digitos{texto[0]};
    digitos.append(&texto[2], significativos - 1);
    int exponente = 0;
    const char* cifras =
        &texto[significativos + 2];  // after "e", a sign that from_chars takes only as a minus
    std::from_chars(cifras + (*cifras == '+' ? 1 : 0), fin.ptr, exponente);

    // Digits to keep: the whole part has exponente + 1 of them.
    const int conservar = exponente + 1 + decimales;
    if (conservar < 0) return std::string(static_cast<std::size_t>(decimales) + 1, '0');
    if (conservar > significativos) {
        digitos.append(static_cast<std::size_t>(conservar - significativos), '0');
    } else {
        const bool sube = conservar < significativos && digitos[static_cast<std::size_t>(conservar)] >= '5';
        digitos.resize(static_cast<std::size_t>(conservar));
        digitos.insert(digitos.begin(), '0');
        std::size_t i = digitos.size();
        for (bool acarreo = sube; acarreo;) {
            char& digito = digitos[--i];
            acarreo = digito == '9';
            digito = acarreo ? '0' : static_cast<char>(digito + 1);
        }
    }
    const std::size_t minimo = static_cast<std::size_t>(decimales) + 1;
    if (digitos.size() < minimo) digitos.insert(0, minimo - digitos.size(), '0');
    const std::size_t sobran = digitos.find_first_not_of('0');
    const std::size_t quitar = std::min(sobran, digitos.size() - minimo);
    return digitos.substr(quitar);
}

}  // namespace

std::string Formato(double valor, std::string_view formato, const Separadores& separadores) {
    if (!std::isfinite(valor)) return {};
    const std::size_t punto = formato.find('.');
    const int decimales = punto == std::string_view::npos ? 0 : static_cast<int>(formato.size() - punto - 1);
    const bool conMiles = formato.find(',') != std::string_view::npos;

    const std::string digitos = DigitosRedondeados(valor, decimales);
    const std::size_t enteros = digitos.size() - static_cast<std::size_t>(decimales);
    std::string salida;
    if (valor < 0 && digitos.find_first_not_of('0') != std::string::npos) salida = "-";
    for (std::size_t i = 0; i < enteros; ++i) {
        if (conMiles && i != 0 && (enteros - i) % 3 == 0) salida += separadores.Miles;
        salida += digitos[i];
    }
    if (decimales > 0) salida += separadores.Decimal + digitos.substr(enteros);
    return salida;
}

std::string FormatoFecha(const Fecha& fecha) {
    std::array<char, 32> texto{};
    std::snprintf(texto.data(), texto.size(), "%02u/%02u/%04d", static_cast<unsigned>(fecha.day()),
                  static_cast<unsigned>(fecha.month()), static_cast<int>(fecha.year()));
    return texto.data();
}

std::string FechaIso(const Fecha& fecha) {
    std::array<char, 32> texto{};
    std::snprintf(texto.data(), texto.size(), "%04d-%02u-%02u", static_cast<int>(fecha.year()),
                  static_cast<unsigned>(fecha.month()), static_cast<unsigned>(fecha.day()));
    return texto.data();
}

}  // namespace trabex
