#include "base/Formatos.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <optional>

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

/// |valor| with `decimales` decimals as a whole number of its last digit, where a product and a comparison
/// tell it for sure: not near a half, nor of more digits than a double has to spare. Most numbers are such,
/// and it takes a tenth of the time.
std::optional<std::uint64_t> EnteroSeguro(double valor, int decimales) {
    constexpr std::array<double, 7> potencias{1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};
    constexpr double mayor = 1e9;
    constexpr double cercaDeMitad =
        1e-4;  // a hundred times what the product and 15 digits may err below `mayor`
    if (decimales >= static_cast<int>(potencias.size())) return std::nullopt;
    const double producto = std::fabs(valor) * potencias[static_cast<std::size_t>(decimales)];
    if (!(producto < mayor)) return std::nullopt;
    const auto entero = static_cast<std::uint64_t>(producto);
    const double resto = producto - static_cast<double>(entero);
    if (std::fabs(resto - 0.5) < cercaDeMitad) return std::nullopt;
    return resto > 0.5 ? entero + 1 : entero;
}

std::string Digitos(double valor, int decimales) {
    const auto entero = EnteroSeguro(valor, decimales);
    if (!entero) return DigitosRedondeados(valor, decimales);
    std::array<char, 24> cifras{};
    const auto fin = std::to_chars(cifras.data(), cifras.data() + cifras.size(), *entero);
    const auto largo = static_cast<std::size_t>(fin.ptr - cifras.data());
    std::string digitos(std::max(largo, static_cast<std::size_t>(decimales) + 1) - largo, '0');
    return digitos.append(cifras.data(), largo);
}

}  // namespace

std::string Formato(double valor, std::string_view formato, const Separadores& separadores) {
    if (!std::isfinite(valor)) return {};
    const std::size_t punto = formato.find('.');
    const int decimales = punto == std::string_view::npos ? 0 : static_cast<int>(formato.size() - punto - 1);
    const bool conMiles = formato.find(',') != std::string_view::npos;

    const std::string digitos = Digitos(valor, decimales);
    const std::size_t enteros = digitos.size() - static_cast<std::size_t>(decimales);
    std::string salida;
    if (valor < 0 && digitos.find_first_not_of('0') != std::string::npos) salida = "-";
    for (std::size_t i = 0; i < enteros; ++i) {
        if (conMiles && i != 0 && (enteros - i) % 3 == 0) salida += separadores.Miles;
        salida += digitos[i];
    }
    if (decimales > 0) {
        salida += separadores.Decimal;
        salida.append(digitos, enteros);
    }
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
