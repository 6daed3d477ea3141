#pragma once

#include <string>
#include <vector>

#include "jet/Paginas.h"
#include "jet/Tabla.h"

namespace trabex::jet {

/// An index of a table under construction, over columns of kinds Largo and Texto, in ascending order.
struct Indice {
    std::string Nombre;
    std::vector<std::size_t> Columnas;
    bool Unico = false;
    /// Key and place of each row.
    std::vector<std::pair<std::string, Puntero>> Entradas{};
};

/// The bytes that stand for a row's values in an index: a mark and the value a column, in the order of the
/// bytes.
std::string ClaveDe(const Indice& indice, const Fila& fila);

/// Writes the tree: leaves with all entries, and above them pages that name the last entry of each below.
/// Gives the root; `suyas` takes its pages. Puts the entries in order.
std::uint32_t EscribirArbol(Paginas& paginas, std::uint32_t tabla, Indice& indice,
                            std::deque<std::uint32_t>& suyas);

}  // namespace trabex::jet
