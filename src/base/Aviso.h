#pragma once

#include <string>
#include <vector>

namespace trabex {

/// How much a notice weighs.
enum class Gravedad {
    Nota,         ///< worth knowing; the numbers stand as they are
    Advertencia,  ///< a number to look at before signing
    Falla,        ///< the numbers do not describe a structure that holds
};

/// What the engineer should know beside the numbers of an element, never instead of them.
struct Aviso {
    Gravedad Peso = Gravedad::Nota;
    std::string Texto;  ///< a sentence in Spanish
    std::string Lugar;  ///< where: "Eje B", "Tramo A-B", "Tramo, estación 3"; empty for the whole element
};

/// In the order in which a person walks the element.
using Avisos = std::vector<Aviso>;

/// "nota", "advertencia" or "falla".
const char* NombreDe(Gravedad gravedad);

/// The place, a colon and the sentence; the sentence alone when there is no place.
std::string EnUnaLinea(const Aviso& aviso);

}  // namespace trabex
