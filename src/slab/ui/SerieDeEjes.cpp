#include "slab/ui/SerieDeEjes.h"

#include <cstddef>

namespace trabex::losas::ui {

std::string SiguienteEnSerie(std::string texto) {
    constexpr std::size_t letrasDeNombre = 2;  // more are a word
    const auto cifra = [](char c) { return c >= '0' && c <= '9'; };
    const auto letra = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
    if (texto.empty()) return texto;
    const bool enCifras = cifra(texto.back());
    if (!enCifras && !letra(texto.back())) return texto;
    std::size_t inicio = texto.size();
    while (inicio > 0 && (enCifras ? cifra(texto[inicio - 1]) : letra(texto[inicio - 1]))) --inicio;
    const bool palabra = inicio > 0 && static_cast<unsigned char>(texto[inicio - 1]) >= 0x80;
    if (!enCifras && (palabra || texto.size() - inicio > letrasDeNombre)) return texto;
    for (std::size_t i = texto.size(); i-- > inicio;) {
        char& c = texto[i];
        const bool acarrea = c == '9' || c == 'Z' || c == 'z';
        if (!acarrea) return ++c, texto;
        c = enCifras ? '0' : static_cast<char>(c - ('Z' - 'A'));
    }
    return texto.insert(inicio, 1, enCifras ? '1' : texto[inicio]);
}

}  // namespace trabex::losas::ui
