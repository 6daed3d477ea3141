#pragma once

#include <string>
#include <vector>

namespace trabex {

/// How much a notice weighs.
enum class Gravedad {
    Nota,         ///< worth knowing; the numbers stand as they are
    Advertencia,  ///< a number to look at before signing
    Falla,        ///< a structure that does not hold, or a number that can't be used
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

/// Whether one of them is a failure: a list of elements marks the one that it belongs to.
bool HayFalla(const Avisos& avisos);

/// The gravest one in a line, the first of them, and how many more there are: "Eje B: … (y 3 avisos más)".
/// Empty without any.
std::string Resumen(const Avisos& avisos);

/// The place, a colon and the sentence; the sentence alone when there is no place.
std::string EnUnaLinea(const Aviso& aviso);

}  // namespace trabex
