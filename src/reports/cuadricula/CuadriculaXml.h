#pragma once

#include <filesystem>

#include "reports/cuadricula/Cuadricula.h"

namespace trabex::cuadricula {

inline constexpr const char* ElementoRaiz = "root_element";
inline constexpr const char* ElementoColeccion = "collection_element";

/// Writes a grid as XML in UTF-8: the root element, in it a collection element a row, in it a `celda` a cell,
/// row headings first, each naming its column. Well formed whatever the texts hold: characters that XML
/// knows not become blanks. Throws ErrorEjecucion; an older file then stays.
void EscribirXml(const Cuadricula& cuadricula, const std::filesystem::path& destino);

}  // namespace trabex::cuadricula
