#pragma once

#include <string>

namespace trabex::lote {

/// The name of an element without the characters that file systems refuse.
std::string ParaArchivo(std::string nombre);

}  // namespace trabex::lote
