#pragma once

#include <cstdint>
#include <functional>
#include <set>
#include <string>
#include <vector>

namespace trabex::salidas {

/// Reads a table of a font file by its name of four letters; empty when the font has none of it.
using TablaDeFuente = std::function<std::string(const char* nombre)>;

/// The measures of a font, in thousandths of its size.
struct MedidasDeFuente {
    int Ascenso = 0;
    int Descenso = 0;                                       ///< below the foot line: negative
    int Izquierda = 0, Abajo = 0, Derecha = 0, Arriba = 0;  ///< the box that holds every glyph
    std::vector<int> Avances;                               ///< by glyph
};
MedidasDeFuente MedidasDe(const TablaDeFuente& tabla);

/// Whether the glyphs are outlines of the TrueType kind, of which a part can be taken.
bool EsTrueType(const TablaDeFuente& tabla);

/// A font file with the outlines of some glyphs alone, under their own numbers; those that they are made of
/// come along. Damaged tables give no more than a damaged font.
std::string ParteDeFuente(const TablaDeFuente& tabla, const std::set<std::uint32_t>& glifos);

/// The whole of a font of the other kind.
std::string FuenteEntera(const TablaDeFuente& tabla);

}  // namespace trabex::salidas
