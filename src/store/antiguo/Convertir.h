#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <string_view>

namespace trabex::almacen::antiguo {

/// The file's bytes begin as a Jet 3 or Jet 4 database does.
bool EsBaseAntigua(const std::filesystem::path& camino);

/// Reads a Jet database into a new file of the store's, with every table it holds, in a process of its own
/// (`trabex-jet` in the program folder) that a deadline and limits hold. False, and no file, when it can't be
/// read. Throws ErrorEjecucion when `destino` can't be written: 61 on a full disk, else 75.
bool CopiarBaseAntigua(const std::filesystem::path& programa, const std::filesystem::path& antigua,
                       const std::filesystem::path& destino);

/// What a conversion could not take.
struct Perdidas {
    std::size_t Tablas = 0;   ///< of the template, that the old file has not or that can't be read
    std::size_t Valores = 0;  ///< past their column's range or width, or of another kind: null now; and
                              ///< the tables that could not be read whole
};

/// Makes `nueva` of the template, with the rows of an old project in the place of its own: each value by the
/// type of the program's own column of its name, whatever its case. Nothing, and no file, when the old one
/// can't be read or `nueva` exists.
std::optional<Perdidas> ConvertirBaseAntigua(const std::filesystem::path& programa,
                                             const std::filesystem::path& antigua,
                                             const std::filesystem::path& plantilla,
                                             const std::filesystem::path& nueva);

/// Where a file stays whose place another takes: beside it, under a name that nothing has and that tells
/// `cual` it is.
std::filesystem::path NombreDeAntigua(const std::filesystem::path& antigua,
                                      std::string_view cual = "formato anterior");

/// The same in the old file's place, which first takes the name `NombreDeAntigua` gave. Nothing, and all as
/// it was, when it can't be read or put there.
std::optional<Perdidas> ConvertirEnSuSitio(const std::filesystem::path& programa,
                                           const std::filesystem::path& antigua,
                                           const std::filesystem::path& plantilla);

}  // namespace trabex::almacen::antiguo
