#include "lote/Resumen.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

#include "base/Texto.h"

namespace trabex::lote {

namespace {

constexpr std::size_t AnchoDeTexto = 40;
constexpr std::size_t AnchoDeNumero = 14;  // "-9.999.999.999": more than any slab that stands

using Linea = std::vector<std::string>;

/// A text as one line of a table shows it.
std::string EnUnaLinea(const std::string& nombre) {
    std::string linea = TextoValido(nombre);
    std::replace_if(
        linea.begin(), linea.end(), [](unsigned char c) { return c < ' '; }, ' ');
    if (NumeroDeCaracteres(linea) <= AnchoDeTexto) return linea;
    std::string_view resto = linea;
    for (std::size_t i = 1; i < AnchoDeTexto; ++i) TomarCaracter(resto);
    return linea.substr(0, linea.size() - resto.size()) + "…";
}

std::string Numero(double valor, const char* formato, const Separadores& separadores) {
    std::string texto = Formato(valor, formato, separadores);
    if (texto.size() <= AnchoDeNumero) return texto;
    std::array<char, 32> bytes{};
    std::snprintf(bytes.data(), bytes.size(), "%.2e", valor);
    texto = bytes.data();
    texto.replace(texto.find_first_of(".,"), 1, separadores.Decimal);
    return texto;
}

std::string Texto(const Celda& celda, const ColumnaResumen& columna, const Separadores& separadores) {
    const auto* texto = std::get_if<std::string>(&celda);
    return texto ? EnUnaLinea(*texto) : Numero(std::get<double>(celda), columna.Formato, separadores);
}

Linea LineaDe(const Lista& lista, const Elemento& elemento, const Separadores& separadores) {
    Linea linea{EnUnaLinea(elemento.Nombre)};
    const std::vector<Celda> celdas = lista.De->Resumir(elemento);
    for (std::size_t c = 0; c < celdas.size(); ++c)
        linea.push_back(Texto(celdas[c], lista.De->Columnas[c + 1], separadores));
    return linea;
}

/// A line with its columns aligned: texts to the left, numbers to the right.
std::string Alinear(const Linea& linea, const std::vector<std::size_t>& anchos,
                    std::span<const ColumnaResumen> columnas) {
    std::string alineada;
    for (std::size_t c = 0; c < linea.size(); ++c) {
        const std::string relleno(anchos[c] - NumeroDeCaracteres(linea[c]), ' ');
        alineada += columnas[c].Formato ? relleno + linea[c] : linea[c] + relleno;
        if (c + 1 < linea.size()) alineada += "  ";
    }
    return alineada;
}

}  // namespace

std::string TablaResumen(const Lista& lista, const Separadores& separadores) {
    std::vector<Linea> lineas(1);
    for (const ColumnaResumen& columna : lista.De->Columnas) lineas.front().emplace_back(columna.Encabezado);
    for (const Elemento& elemento : lista.Elementos) lineas.push_back(LineaDe(lista, elemento, separadores));
    std::vector<std::size_t> anchos(lineas.front().size());
    for (const Linea& linea : lineas) {
        for (std::size_t c = 0; c < linea.size(); ++c)
            anchos[c] = std::max(anchos[c], NumeroDeCaracteres(linea[c]));
    }
    std::string tabla;
    for (std::size_t f = 0; f < lineas.size(); ++f) {
        tabla += Alinear(lineas[f], anchos, lista.De->Columnas);
        if (f > 0 && !lista.Elementos[f - 1].Error.empty()) tabla += "  " + lista.Elementos[f - 1].Error;
        tabla += '\n';
    }
    return tabla;
}

}  // namespace trabex::lote
