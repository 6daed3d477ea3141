#include "jet/Indice.h"

#include <algorithm>

#include "jet/Texto.h"

namespace trabex::jet {

namespace {

constexpr std::uint8_t PaginaNodo = 3, PaginaHoja = 4;
constexpr std::size_t LugarLibre = 2, LugarTabla = 4, LugarAnterior = 12, LugarSiguiente = 16;
constexpr std::size_t Mascara = 27, Entradas = 480;
constexpr char Presente = 0x7F, Nulo = 0x00;

/// The last entry of a page, and the page.
struct Pasada {
    std::string Entrada;
    std::uint32_t Pagina;
};

void MayorPrimero(std::string& bytes, std::uint32_t valor, int cuantos) {
    for (int i = cuantos - 1; i >= 0; --i) bytes += static_cast<char>(valor >> 8 * i & 0xFF);
}

/// A level of the tree. Each page says where its entries begin by a bit a byte, but for the first.
std::vector<Pasada> Nivel(Paginas& paginas, std::uint32_t tabla, std::uint8_t tipo,
                          const std::vector<std::string>& entradas, std::deque<std::uint32_t>& suyas) {
    std::vector<Pasada> pasadas;
    std::uint32_t numero = 0;
    std::size_t fin = TamanoPagina;
    for (const std::string& entrada : entradas) {
        if (numero == 0 || fin + entrada.size() > TamanoPagina) {
            const std::uint32_t anterior = numero;
            numero = paginas.Nueva();
            suyas.push_back(numero);
            Pagina& nueva = paginas[numero];
            nueva.Byte(0, tipo);
            nueva.Byte(1, 1);
            nueva.Largo(LugarTabla, tabla);
            nueva.Largo(LugarAnterior, anterior);
            if (anterior != 0) paginas[anterior].Largo(LugarSiguiente, numero);
            fin = Entradas;
            pasadas.push_back({"", numero});
        }
        Pagina& pagina = paginas[numero];
        pagina.Bytes(fin, entrada);
        fin += entrada.size();
        const auto hasta = static_cast<unsigned>(fin - Entradas);
        pagina.Encender(Mascara + hasta / 8, hasta % 8);
        pagina.Corto(LugarLibre, TamanoPagina - fin);
        pasadas.back().Entrada = entrada;
    }
    return pasadas;
}

}  // namespace

std::string ClaveDe(const Indice& indice, const Fila& fila) {
    std::string clave;
    for (const std::size_t columna : indice.Columnas) {
        if (const auto* entero = std::get_if<std::int64_t>(&fila[columna])) {
            clave += Presente;
            MayorPrimero(clave, static_cast<std::uint32_t>(*entero) ^ 0x80000000U, 4);
        } else if (const auto* texto = std::get_if<std::string>(&fila[columna])) {
            clave += Presente;
            clave += ClaveDeTexto(*texto);
        } else {
            clave += Nulo;
        }
    }
    return clave;
}

std::uint32_t EscribirArbol(Paginas& paginas, std::uint32_t tabla, Indice& indice,
                            std::deque<std::uint32_t>& suyas) {
    std::sort(indice.Entradas.begin(), indice.Entradas.end(), [](const auto& a, const auto& b) {
        return std::pair(a.first, a.second.Numero()) < std::pair(b.first, b.second.Numero());
    });
    std::vector<std::string> entradas;
    for (const auto& [clave, donde] : indice.Entradas) {
        entradas.push_back(clave);
        MayorPrimero(entradas.back(), donde.Numero(), 4);
    }
    std::uint8_t tipo = PaginaHoja;
    while (true) {
        const std::vector<Pasada> pasadas = Nivel(paginas, tabla, tipo, entradas, suyas);
        if (pasadas.size() <= 1) return pasadas.empty() ? 0 : pasadas.front().Pagina;
        entradas.clear();
        for (const Pasada& pasada : pasadas) {
            entradas.push_back(pasada.Entrada);
            MayorPrimero(entradas.back(), pasada.Pagina, 4);
        }
        tipo = PaginaNodo;
    }
}

}  // namespace trabex::jet
