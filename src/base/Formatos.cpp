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
std::optional<std::uint32_t> EnteroSeguro(double valor, int decimales) {
    constexpr std::array<double, 7> potencias{1, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6};
    constexpr double mayor = 1e9;
    constexpr double cercaDeMitad =
        1e-4;  // a hundred times what the product and 15 digits may err below `mayor`
    if (decimales >= static_cast<int>(potencias.size())) return std::nullopt;
    const double producto = std::fabs(valor) * potencias[static_cast<std::size_t>(decimales)];
    if (!(producto < mayor)) return std::nullopt;
    const auto entero = static_cast<std::uint32_t>(producto);
    const double resto = producto - static_cast<double>(entero);
    if (std::fabs(resto - 0.5) < cercaDeMitad) return std::nullopt;
    return resto > 0.5 ? entero + 1 : entero;
}

/// Digits with their marks: decimals behind the one, thousands between the other.
std::string ConMarcas(const std::string& digitos, int decimales, std::string_view miles,
                      std::string_view decimal) {
    const std::size_t enteros = digitos.size() - static_cast<std::size_t>(decimales);
    std::string salida;
    for (std::size_t i = 0; i < enteros; ++i) {
        if (i != 0 && (enteros - i) % 3 == 0) salida += miles;
        salida += digitos[i];
    }
    if (decimales > 0) {
        salida += decimal;
        salida.append(digitos, enteros);
    }
    return salida;
}

/// The same of a number of up to ten digits, from the last to the first, between marks of one character.
std::string ConMarcas(std::uint32_t numero, bool negativo, int decimales, char miles, char decimal) {
    std::array<char, 24> texto{};
    char* primera = texto.data() + texto.size();
    const char* const fin = primera;
    const auto ultimo = [](std::uint32_t digitos) { return static_cast<char>('0' + digitos % 10); };
    for (int i = 0; i < decimales; ++i, numero /= 10) *--primera = ultimo(numero);
    if (decimales > 0) *--primera = decimal;
    *--primera = ultimo(numero);
    numero /= 10;
    for (int i = 1; numero > 0; ++i, numero /= 10) {
        if (i % 3 == 0 && miles != '\0') *--primera = miles;
        *--primera = ultimo(numero);
    }
    if (negativo) *--primera = '-';
    return std::string(primera, static_cast<std::size_t>(fin - primera));
}

}  // namespace

std::string Formato(double valor, std::string_view formato, const Separadores& separadores) {
    if (!std::isfinite(valor)) return {};
    const std::size_t punto = formato.find('.');
    const int decimales = punto == std::string_view::npos ? 0 : static_cast<int>(formato.size() - punto - 1);
    const bool conMiles = formato.find(',') != std::string_view::npos;

    const std::string_view miles = conMiles ? std::string_view(separadores.Miles) : std::string_view();

    const auto entero = EnteroSeguro(valor, decimales);
    if (entero && miles.size() <= 1 && separadores.Decimal.size() == 1)
        return ConMarcas(*entero, valor < 0 && *entero != 0, decimales, miles.empty() ? '\0' : miles[0],
                         separadores.Decimal[0]);
    const std::string digitos = DigitosRedondeados(valor, decimales);
    const bool negativo = valor < 0 && digitos.find_first_not_of('0') != std::string::npos;
    return (negativo ? "-" : "") + ConMarcas(digitos, decimales, miles, separadores.Decimal);
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
