#include <algorithm>
#include <charconv>

#include "base/Formatos.h"

namespace trabex {

namespace {

bool SoloCifras(std::string_view texto) {
    return !texto.empty() &&
           std::all_of(texto.begin(), texto.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// The digits of a whole part; with `miles` they stand in groups of three. Nothing when they do not.
std::optional<std::string> Enteros(std::string_view texto, std::optional<char> miles) {
    std::string cifras;
    bool primero = true;
    for (;;) {
        const std::size_t fin = miles ? texto.find(*miles) : std::string_view::npos;
        const std::string_view grupo = texto.substr(0, fin);
        const bool entero = primero ? fin == std::string_view::npos || grupo.size() <= 3 : grupo.size() == 3;
        if (!SoloCifras(grupo) || !entero) return std::nullopt;
        cifras += grupo;
        if (fin == std::string_view::npos) return cifras;
        texto.remove_prefix(fin + 1);
        primero = false;
    }
}

/// The mark before the decimals: the last one, if it stands alone.
std::size_t LugarDecimal(std::string_view texto) {
    const std::size_t ultima = texto.find_last_of(".,");
    if (ultima == std::string_view::npos) return ultima;
    return std::count(texto.begin(), texto.end(), texto[ultima]) == 1 ? ultima : std::string_view::npos;
}

}  // namespace

std::optional<double> LeerNumero(std::string_view texto) {
    const std::size_t inicio = texto.find_first_not_of(' ');
    if (inicio == std::string_view::npos) return std::nullopt;
    texto = texto.substr(inicio, texto.find_last_not_of(' ') - inicio + 1);
    const bool negativo = texto.front() == '-';
    if (negativo || texto.front() == '+') texto.remove_prefix(1);

    const std::size_t decimal = LugarDecimal(texto);
    const std::string_view entera = texto.substr(0, decimal);
    const std::string_view fraccion = decimal == std::string_view::npos ? "" : texto.substr(decimal + 1);
    const std::size_t marca = entera.find_first_of(".,");
    if (entera.empty() && fraccion.empty()) return std::nullopt;
    if (!fraccion.empty() && !SoloCifras(fraccion)) return std::nullopt;
    const auto cifras =
        entera.empty()
            ? std::optional<std::string>("0")
            : Enteros(entera, marca == std::string_view::npos ? std::nullopt : std::optional(entera[marca]));
    if (!cifras) return std::nullopt;
    const std::string escrito = (negativo ? "-" : "") + *cifras + "." + std::string(fraccion) + "0";
    double valor = 0;
    const auto leido = std::from_chars(escrito.data(), escrito.data() + escrito.size(), valor);
    return leido.ec == std::errc() ? std::optional(valor) : std::nullopt;
}

std::string NumeroParaEditar(double valor, int decimales, const Separadores& separadores) {
    constexpr int masDecimales = 10;
    std::string formato = "0." + std::string(masDecimales, '0');
    std::string texto = Formato(valor, formato, {"", "."});
    const std::size_t punto = texto.find('.');
    if (punto == std::string::npos) return texto;
    const std::size_t ultima = texto.find_last_not_of('0');
    const std::size_t conservar = punto + 1 + static_cast<std::size_t>(decimales);
    texto.resize(std::max(ultima + 1, conservar));
    if (texto.back() == '.') texto.pop_back();
    if (punto < texto.size()) texto.replace(punto, 1, separadores.Decimal);
    return texto;
}

}  // namespace trabex
