#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace trabex::documento {

/// A word of a layout: bare, or a text between double quotes, without them.
struct Palabra {
    std::string Texto;
    bool Citada = false;
};

/// A line of a layout that has words; they are never empty.
struct Linea {
    int Numero = 0;  ///< in its file, from 1
    std::vector<Palabra> Palabras;
};

/// The lines of a layout file. In a text a backslash brings in a quote or itself, and `\n` breaks the line;
/// what follows a `#` is a comment. Throws ErrorEjecucion 53 when there is no such file, and ErrorDeMaqueta
/// where a text does not close.
std::vector<Linea> LeerLineas(const std::filesystem::path& archivo);

}  // namespace trabex::documento
