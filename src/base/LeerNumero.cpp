#include "base/LeerNumero.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <vector>

namespace trabex {

namespace {

constexpr char MarcaDeMiles = '\x01';  // stands for the locale's mark where it is neither comma nor point

/// Blanks that part thousands or come along with a paste, and the apostrophes.
constexpr std::array<std::string_view, 5> Blancos{" ", "\t", "\u00A0", "\u202F", "\u2009"};
constexpr std::array<std::string_view, 2> Apostrofos{"'", "\u2019"};

bool SoloCifras(std::string_view texto) {
    return std::all_of(texto.begin(), texto.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::string_view SinBlancosAlrededor(std::string_view texto) {
    for (bool quita = true; quita;) {
        quita = false;
        for (const std::string_view blanco : Blancos) {
            if (texto.starts_with(blanco)) texto.remove_prefix(blanco.size()), quita = true;
            if (texto.ends_with(blanco)) texto.remove_suffix(blanco.size()), quita = true;
        }
    }
    return texto;
}

void Reemplazar(std::string& texto, std::string_view marca) {
    for (std::size_t donde = texto.find(marca); donde != std::string::npos; donde = texto.find(marca, donde))
        texto.replace(donde, marca.size(), 1, MarcaDeMiles);
}

/// The locale's mark of thousands as one character, whichever of its kind was typed.
std::string ConMarcaDeMiles(std::string_view texto, const std::string& miles) {
    std::string salida(texto);
    const auto es = [&](std::string_view marca) { return marca == miles; };
    const auto cambiar = [&](const auto& familia) {
        if (!std::any_of(familia.begin(), familia.end(), es)) return;
        for (const std::string_view marca : familia) Reemplazar(salida, marca);
    };
    cambiar(Blancos);
    cambiar(Apostrofos);
    return salida;
}

/// The digits of a whole part in which `miles`, if it stands there, parts groups of three. Nothing when it
/// does not.
std::optional<std::string> Enteros(std::string_view texto, char miles) {
    if (texto.find(miles) == std::string_view::npos)
        return SoloCifras(texto) ? std::optional(std::string(texto)) : std::nullopt;
    std::string cifras;
    for (bool primero = true;; primero = false) {
        const std::size_t fin = texto.find(miles);
        const std::string_view grupo = texto.substr(0, fin);
        const bool cabe = primero ? !grupo.empty() && grupo.size() <= 3 : grupo.size() == 3;
        if (!cabe || !SoloCifras(grupo)) return std::nullopt;
        cifras += grupo;
        if (fin == std::string_view::npos) return cifras;
        texto.remove_prefix(fin + 1);
    }
}

/// Takes the number of a whole part and its decimals, when they are one.
void Tomar(const std::optional<std::string>& entera, std::string_view fraccion,
           std::vector<double>& valores) {
    if (!entera || !SoloCifras(fraccion) || entera->size() + fraccion.size() == 0) return;
    const std::string escrito = "0" + *entera + "." + std::string(fraccion) + "0";
    double valor = 0;
    const auto leido = std::from_chars(escrito.data(), escrito.data() + escrito.size(), valor);
    if (leido.ec == std::errc()) valores.push_back(valor);
}

/// All that a text without its sign may be: no number, one, or two.
std::vector<double> LeerSinSigno(std::string_view texto, const Separadores& separadores) {
    std::vector<double> valores;
    const std::size_t ultima = texto.find_last_of(".,");
    if (ultima == std::string_view::npos) {
        Tomar(Enteros(texto, MarcaDeMiles), "", valores);
        return valores;
    }
    const char marca = texto[ultima];
    const char otra = marca == '.' ? ',' : '.';
    const bool sola = std::count(texto.begin(), texto.end(), marca) == 1;
    const bool ambas = texto.find(otra) != std::string_view::npos;
    const bool deMiles = separadores.Miles == std::string(1, marca) &&
                         separadores.Decimal != separadores.Miles && texto.front() != '0';
    if (sola)
        Tomar(Enteros(texto.substr(0, ultima), ambas ? otra : MarcaDeMiles), texto.substr(ultima + 1),
              valores);
    if (!ambas && (!sola || deMiles)) Tomar(Enteros(texto, marca), "", valores);
    return valores;
}

/// All that `texto` may be as a number.
std::vector<double> LeerTodas(std::string_view texto, const Separadores& separadores) {
    texto = SinBlancosAlrededor(texto);
    double signo = 1;
    for (const auto& [marca, valor] :
         {std::pair<std::string_view, double>{"-", -1}, {"\u2212", -1}, {"+", 1}}) {
        if (!texto.starts_with(marca)) continue;
        texto.remove_prefix(marca.size());
        signo = valor;
        break;
    }
    const std::string marcado = ConMarcaDeMiles(texto, separadores.Miles);
    std::vector<double> valores = LeerSinSigno(marcado, separadores);
    for (double& valor : valores) valor = valor == 0 ? 0 : signo * valor;
    return valores;
}

std::string Limite(const char* antes, double limite, const Separadores& separadores) {
    return antes + NumeroParaEditar(limite, 0, separadores);
}

std::string FueraDeRango(const ClaseNumero& clase, const Separadores& separadores) {
    if (!std::isfinite(clase.Maximo))
        return Limite("No puede ser menor que ", clase.Minimo, separadores) + ".";
    return Limite("Debe estar entre ", clase.Minimo, separadores) + Limite(" y ", clase.Maximo, separadores) +
           ".";
}

}  // namespace

std::optional<double> LeerNumero(std::string_view texto, const Separadores& separadores) {
    const std::vector<double> valores = LeerTodas(texto, separadores);
    return valores.size() == 1 ? std::optional(valores.front()) : std::nullopt;
}

NumeroJuzgado JuzgarNumero(std::string_view texto, const ClaseNumero& clase, const Separadores& separadores) {
    if (SinBlancosAlrededor(texto).empty()) return {clase.Vacio, clase.Vacio ? "" : "Falta el número."};
    std::vector<double> valores = LeerTodas(texto, separadores);
    if (valores.empty()) return {std::nullopt, MotivoNoEsNumero};
    if (clase.Entero) {
        std::erase_if(valores, [](double valor) { return valor != std::trunc(valor); });
        if (valores.empty()) return {std::nullopt, "Debe ser un número entero."};
    }
    if (valores.size() > 1)
        return {std::nullopt, "Puede leerse " + NumeroParaEditar(valores[1], 0, separadores) + " o " +
                                  NumeroParaEditar(valores[0], 0, separadores) +
                                  ": escríbalo sin separador de miles."};
    const double valor = valores.front();
    if (!(valor >= clase.Minimo && valor <= clase.Maximo))
        return {std::nullopt, FueraDeRango(clase, separadores)};
    return {valor, {}};
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
