#include "base/LeerFecha.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

#include "base/Texto.h"

namespace trabex {

namespace {

struct Cifras {
    int Valor = 0;
    std::size_t Cuantas = 0;
};

/// The three numbers of a date; nothing when there are others, or anything else.
std::optional<std::array<Cifras, 3>> TresNumeros(std::string_view texto) {
    constexpr std::string_view separadores = "/-. ";
    constexpr std::string_view cifras = "0123456789";
    std::array<Cifras, 3> numeros;
    for (std::size_t i = 0; i < numeros.size(); ++i) {
        if (i > 0) {
            if (texto.empty() || separadores.find(texto.front()) == std::string_view::npos)
                return std::nullopt;
            texto.remove_prefix(1);
        }
        const std::size_t cuantas = std::min(texto.find_first_not_of(cifras), texto.size());
        if (cuantas < 1 || cuantas > 4) return std::nullopt;
        std::from_chars(texto.data(), texto.data() + cuantas, numeros[i].Valor);
        numeros[i].Cuantas = cuantas;
        texto.remove_prefix(cuantas);
    }
    return texto.empty() ? std::optional(numeros) : std::nullopt;
}

/// A year as it is written: of four figures, or of two.
std::optional<int> Ano(const Cifras& escrito, const Fecha& hoy) {
    if (escrito.Cuantas == 4) return escrito.Valor;
    if (escrito.Cuantas != 2) return std::nullopt;
    constexpr int porDelante = 20;
    const int ultimo = static_cast<int>(hoy.year()) + porDelante;
    const int ano = ultimo / 100 * 100 + escrito.Valor;
    return ano > ultimo ? ano - 100 : ano;
}

}  // namespace

std::optional<Fecha> LeerFecha(std::string_view texto, OrdenFecha local, const Fecha& hoy) {
    const std::string recortado = Recortar(texto);
    const auto numeros = TresNumeros(recortado);
    if (!numeros) return std::nullopt;
    const auto formar = [&](const Cifras& dia, const Cifras& mes, const Cifras& ano) -> std::optional<Fecha> {
        const auto entero = Ano(ano, hoy);
        if (!entero || *entero < 1 || dia.Cuantas > 2 || mes.Cuantas > 2) return std::nullopt;
        const Fecha fecha = std::chrono::year(*entero) / mes.Valor / dia.Valor;
        return fecha.ok() ? std::optional(fecha) : std::nullopt;
    };
    const auto& [primero, segundo, tercero] = *numeros;
    if (primero.Cuantas == 4) return formar(tercero, segundo, primero);
    if (const auto fecha = formar(primero, segundo, tercero)) return fecha;
    if (local == OrdenFecha::MesDiaAno) return formar(segundo, primero, tercero);
    return local == OrdenFecha::AnoMesDia ? formar(tercero, segundo, primero) : std::nullopt;
}

}  // namespace trabex
