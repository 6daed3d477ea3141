#pragma once

#include <filesystem>
#include <string_view>

#include "base/ErrorEjecucion.h"

namespace trabex::almacen {

/// What was saved of a damaged database. All is 0 when it was sound.
struct Salvado {
    int Filas = 0;
    int FilasPerdidas = 0;    ///< of pages that could be read
    int PaginasPerdidas = 0;  ///< with all the rows that stood in them
};

/// What came of a compaction; true when it was done.
struct Compactado {
    operator bool() const { return Hecho; }

    bool Hecho = false;
    CodigoError Causa = CodigoError::ErrorAccesoRuta;  ///< why it was not done
    Salvado DelDanado;
};

/// Writes the database at `origen` whole into a new file `destino`, without the room that deleted rows left.
/// Of a damaged one, or one that is not let in, it saves the rows that can be read into a copy of
/// `plantilla`, or where there is none into tables as its catalogue still tells them. Not done, and no file
/// at `destino`, when `origen` is no database or nothing can be saved of it, another program keeps it, or the
/// disk refuses. A `destino` that exists is not touched.
Compactado CompactarBaseDatos(const std::filesystem::path& origen, const std::filesystem::path& destino,
                              const std::filesystem::path& plantilla = {});

/// Takes back what a save that died on its way left in the file, so that its bytes alone are the database.
/// For whoever then copies them. A file that is no sound database stays as it is.
void AsentarBaseDatos(const std::filesystem::path& camino);

/// Throws ErrorEjecucion 70 when another running program has a file open: it is then neither replaced nor
/// deleted.
void ExigirLibre(const std::filesystem::path& camino);

/// Copies a file as it stands between two saves, whoever writes it, and what is no database byte by byte.
/// Throws ErrorEjecucion as CopiarArchivo.
void CopiarBaseDatos(const std::filesystem::path& origen, const std::filesystem::path& destino);

/// Removes what a save that died on its way left beside a file. For whoever puts another file in its place:
/// the engine would take the new one for the old and write the old one's pages into it.
void OlvidarGuardado(const std::filesystem::path& camino);

/// Makes a new database file from schema text (several statements). False and no file when it fails or
/// `camino` exists. For building templates.
bool CrearBaseDatos(const std::filesystem::path& camino, std::string_view esquema);

}  // namespace trabex::almacen
