#pragma once

#include <filesystem>
#include <string_view>

namespace trabex::almacen {

/// Writes the database at `origen` whole into a new file `destino`, without the room that deleted rows left.
/// Of a damaged database it saves what can be read. False, and no file at `destino`, when `origen` is no
/// database, `destino` exists, or the disk refuses.
bool CompactarBaseDatos(const std::filesystem::path& origen, const std::filesystem::path& destino);

/// Takes back what a save that died on its way left in the file, so that its bytes alone are the database.
/// For whoever then copies them. A file that is no sound database stays as it is.
void AsentarBaseDatos(const std::filesystem::path& camino);

/// Removes what a save that died on its way left beside a file. For whoever puts another file in its place:
/// the engine would take the new one for the old and write the old one's pages into it.
void OlvidarGuardado(const std::filesystem::path& camino);

/// Makes a new database file from schema text (several statements). False and no file when it fails or
/// `camino` exists. For building templates.
bool CrearBaseDatos(const std::filesystem::path& camino, std::string_view esquema);

}  // namespace trabex::almacen
