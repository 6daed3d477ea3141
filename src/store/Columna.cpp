#include "store/Columna.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <charconv>
#include <cmath>
#include <utility>

#include "base/Enteros.h"
#include "base/Texto.h"

namespace trabex::almacen {

namespace {

constexpr std::array<std::pair<std::string_view, TipoColumna>, 7> Declaraciones{{
    {"SMALLINT", TipoColumna::Entero16},
    {"INTEGER", TipoColumna::Entero32},
    {"DOUBLE", TipoColumna::Doble},
    {"BOOLEAN", TipoColumna::Booleano},
    {"TEXT", TipoColumna::Texto},
    {"DATE", TipoColumna::Dia},
    {"BLOB", TipoColumna::Binario},
}};

/// A number of any kind as a double.
std::optional<double> Numero(const Valor& valor) {
    if (const auto* b = std::get_if<bool>(&valor)) return *b ? 1 : 0;
    if (const auto* corto = std::get_if<std::int16_t>(&valor)) return *corto;
    if (const auto* largo = std::get_if<std::int32_t>(&valor)) return *largo;
    if (const auto* doble = std::get_if<double>(&valor)) return *doble;
    return std::nullopt;
}

template <class Entero>
std::optional<Valor> AdmitirEntero(double numero) {
    try {
        return EstrecharRedondeando<Entero>(numero);
    } catch (const ErrorEjecucion&) {
        return std::nullopt;
    }
}

std::optional<Valor> AdmitirNumero(TipoColumna tipo, double numero) {
    if (!std::isfinite(numero)) return std::nullopt;
    switch (tipo) {
        case TipoColumna::Booleano:
            return numero != 0;
        case TipoColumna::Entero16:
            return AdmitirEntero<std::int16_t>(numero);
        case TipoColumna::Entero32:
            return AdmitirEntero<std::int32_t>(numero);
        case TipoColumna::Doble:
            return numero;
        default:
            return std::nullopt;
    }
}

}  // namespace

Columna LeerDeclaracion(std::string_view nombre, std::string_view declaracion) {
    Columna columna{std::string(nombre), TipoColumna::Texto, 0};
    const std::size_t parentesis = declaracion.find('(');
    std::string tipo(declaracion.substr(0, parentesis));
    std::transform(tipo.begin(), tipo.end(), tipo.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    for (const auto& [texto, conocido] : Declaraciones) {
        if (tipo == texto) columna.Tipo = conocido;
    }
    if (parentesis != std::string_view::npos)
        std::from_chars(declaracion.data() + parentesis + 1, declaracion.data() + declaracion.size(),
                        columna.Ancho);
    return columna;
}

std::optional<Valor> Admitir(const Columna& columna, const Valor& valor) {
    if (std::holds_alternative<std::monostate>(valor)) return valor;
    if (const auto numero = Numero(valor)) return AdmitirNumero(columna.Tipo, *numero);
    if (const auto* texto = std::get_if<std::string>(&valor)) {
        if (columna.Tipo != TipoColumna::Texto) return std::nullopt;
        if (columna.Ancho != 0 && NumeroDeCaracteres(*texto) > columna.Ancho) return std::nullopt;
        return valor;
    }
    if (const auto* fecha = std::get_if<Fecha>(&valor)) {
        if (columna.Tipo != TipoColumna::Dia || !fecha->ok()) return std::nullopt;
        return valor;
    }
    if (columna.Tipo != TipoColumna::Binario) return std::nullopt;
    return valor;
}

std::optional<Fecha> FechaDeTexto(std::string_view texto) {
    if (texto.size() != 10 || texto[4] != '-' || texto[7] != '-') return std::nullopt;
    const auto entero = [&](std::size_t desde, std::size_t cifras) {
        int valor = -1;
        const char* fin = texto.data() + desde + cifras;
        return std::from_chars(texto.data() + desde, fin, valor).ptr == fin ? valor : -1;
    };
    const int ano = entero(0, 4);
    const int mes = entero(5, 2);
    const int dia = entero(8, 2);
    if (ano < 0 || mes < 0 || dia < 0) return std::nullopt;
    const Fecha fecha = std::chrono::year(ano) / mes / dia;
    return fecha.ok() ? std::optional(fecha) : std::nullopt;
}

}  // namespace trabex::almacen
