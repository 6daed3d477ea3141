#pragma once

#include <filesystem>

namespace trabex::almacen::antiguo {

/// Writes every table of a database of the store's as a Jet 4 database, whole in the place of what `destino`
/// held or not at all. Throws ErrorEjecucion when it can't be read or written, or holds what no such database
/// can.
void EscribirJet(const std::filesystem::path& base, const std::filesystem::path& destino);

/// Whether a file is what the program writes of `base`, to the byte.
bool EsEscrituraDe(const std::filesystem::path& base, const std::filesystem::path& archivo);

}  // namespace trabex::almacen::antiguo
