#include "store/Dialecto.h"

#include <algorithm>
#include <cctype>

#include "store/Comparacion.h"

namespace trabex::almacen {

namespace {

constexpr std::string_view Blancos = " \t\r\n";

std::string_view Recortar(std::string_view texto) {
    const std::size_t inicio = texto.find_first_not_of(Blancos);
    if (inicio == std::string_view::npos) return {};
    return texto.substr(inicio, texto.find_last_not_of(Blancos) - inicio + 1);
}

/// Takes the next word (up to a blank) from the front of `texto`.
std::string_view TomarPalabra(std::string_view& texto) {
    texto = Recortar(texto);
    const std::string_view palabra = texto.substr(0, texto.find_first_of(Blancos));
    texto.remove_prefix(palabra.size());
    return palabra;
}

bool EsPalabra(std::string_view texto, std::string_view mayusculas) {
    return std::equal(texto.begin(), texto.end(), mayusculas.begin(), mayusculas.end(),
                      [](char a, char b) { return std::toupper(static_cast<unsigned char>(a)) == b; });
}

/// One statement, without comments or open quotes. A final semicolon is allowed.
bool EsUnaSentencia(std::string_view texto) {
    char comilla = 0;
    for (std::size_t i = 0; i < texto.size(); ++i) {
        const char c = texto[i];
        if (c == '\0') return false;
        if (comilla != 0) {
            if (c == comilla) comilla = 0;
            continue;
        }
        const char siguiente = i + 1 < texto.size() ? texto[i + 1] : '\0';
        if (c == '\'' || c == '"') comilla = c;
        if ((c == '-' && siguiente == '-') || (c == '/' && siguiente == '*')) return false;
        if (c == ';' && !Recortar(texto.substr(i + 1)).empty()) return false;
    }
    return comilla == 0;
}

const std::string EnSuOrden = std::string(" COLLATE ") + OrdenDelAlmacen;

/// Each text between single quotes of a statement compares by the store's order.
std::string CompararEnOrden(std::string_view sentencia) {
    std::string salida;
    char comilla = 0;
    for (const char c : sentencia) {
        salida += c;
        if (comilla == 0) {
            if (c == '\'' || c == '"') comilla = c;
        } else if (c == comilla) {
            if (c == '\'') salida += EnSuOrden;
            comilla = 0;
        }
    }
    return salida;
}

/// The rows of a source that ends in `ORDER BY` one column stand in the store's order.
std::string PonerEnOrden(std::string_view fuente) {
    std::string_view antes = Recortar(fuente);
    const std::size_t columna = antes.find_last_of(Blancos);
    if (columna == std::string_view::npos) return std::string(fuente);
    antes = Recortar(antes.substr(0, columna));
    const std::size_t por = antes.find_last_of(Blancos);
    if (por == std::string_view::npos || !EsPalabra(antes.substr(por + 1), "BY")) return std::string(fuente);
    const bool esUna = Recortar(fuente).find_first_of(",;'\"()", columna) == std::string_view::npos;
    return std::string(fuente) + (esUna ? EnSuOrden : "");
}

}  // namespace

std::string Sentencia(std::string_view forma, std::initializer_list<std::string_view> nombres) {
    std::string salida;
    const auto* nombre = nombres.begin();
    for (const char c : forma) {
        if (c != '?') {
            salida += c;
        } else if (nombre == nombres.end() || nombre->find('\'') != std::string_view::npos) {
            return {};
        } else {
            salida += '\'';
            salida += *nombre++;
            salida += '\'';
        }
    }
    return salida;
}

std::optional<std::string> TraducirSentencia(std::string_view sentencia) {
    if (sentencia.empty() || !EsUnaSentencia(sentencia)) return std::nullopt;
    std::string_view resto = sentencia;
    if (EsPalabra(TomarPalabra(resto), "DELETE") && TomarPalabra(resto) == "*")
        return "DELETE" + CompararEnOrden(resto);
    return CompararEnOrden(sentencia);
}

std::optional<Fuente> TraducirFuente(std::string_view fuente) {
    std::string_view resto = fuente;
    if (!EsPalabra(TomarPalabra(resto), "SELECT")) {
        const std::string tabla(Recortar(fuente));
        if (tabla.empty()) return std::nullopt;
        return Fuente{"SELECT rowid, * FROM " + Identificador(tabla), tabla};
    }
    if (!EsUnaSentencia(fuente)) return std::nullopt;
    if (TomarPalabra(resto) == "*" && EsPalabra(TomarPalabra(resto), "FROM")) {
        const std::string tabla(TomarPalabra(resto));
        return Fuente{"SELECT rowid, * FROM " + Identificador(tabla) + PonerEnOrden(CompararEnOrden(resto)),
                      tabla};
    }
    return Fuente{PonerEnOrden(CompararEnOrden(fuente)), {}};
}

std::string Identificador(std::string_view nombre) {
    std::string salida = "\"";
    for (const char c : nombre) salida += c == '"' ? std::string("\"\"") : std::string(1, c);
    return salida + '"';
}

std::optional<CriterioLeido> LeerCriterio(std::string_view criterio) {
    const std::size_t igual = criterio.find('=');
    if (igual == std::string_view::npos) return std::nullopt;
    const std::string campo(Recortar(criterio.substr(0, igual)));
    const std::string_view valor = Recortar(criterio.substr(igual + 1));
    if (campo.empty() || valor.empty()) return std::nullopt;
    if (valor.front() != '\'') return CriterioLeido{campo, std::string(valor), false};
    if (valor.size() < 2 || valor.back() != '\'') return std::nullopt;
    const std::string_view texto = valor.substr(1, valor.size() - 2);
    if (texto.find('\'') != std::string_view::npos) return std::nullopt;
    return CriterioLeido{campo, std::string(texto), true};
}

}  // namespace trabex::almacen
