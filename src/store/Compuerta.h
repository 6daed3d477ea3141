#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string_view>

#include "store/Motor.h"

namespace trabex::almacen {

/// Bytes of someone else's database; twenty thousand slabs are a tenth of it.
inline constexpr std::uintmax_t LargoMaximo = 128 << 20;

/// Rows of a set on someone else's database: no project has as many in one table.
inline constexpr std::size_t FilasMaximas = 200'000;

/// A database that was let in, or why it was not.
struct Entrada {
    std::shared_ptr<Motor> Base;  ///< null when it was not
    CodigoError Causa = CodigoError::ArchivoNoEncontrado;
    bool Bloqueada =
        false;  ///< it may be sound: another program, or the machine, keeps it from being looked at
};

/// The one gate of files that anybody may have written. It lets in a sound database of plain tables (and
/// indexes on their columns): what runs when it is read, such as views, triggers, virtual tables and
/// generated columns, stays out, as does a log that is not of this file. Tables of other tools are left as
/// they are.
///
/// A file that can't be written opens for reading. Nothing is created or changed, except that a save that
/// died on its way is taken back.
Entrada DejarEntrar(const std::filesystem::path& camino);

/// A statement that makes a plain table; what fills its columns by itself does not stand in it.
bool EsTablaSimple(std::string_view sql);

/// All that a database holds is plain tables and indexes on their columns.
bool SonTablasSimples(Motor& motor);

/// The file's bytes begin as a database of the engine does.
bool TieneCabecera(const std::filesystem::path& camino);

/// What the engine may leave beside a file: its journal, and the log and index of another way of writing.
std::vector<std::filesystem::path> ArchivosAlLado(const std::filesystem::path& camino);

}  // namespace trabex::almacen
