#pragma once

#include <filesystem>

#include "store/Conexion.h"

namespace trabex::almacen::proyecto {

/// As AbrirConexion, on a project. The file of another program, or of a later edition of this one, counts as
/// a project that can't be read. The file of an earlier edition is read as it is; its first save brings it to
/// this edition, or leaves it whole as it was.
void ConectarProyecto(Conexion& conexion, const std::filesystem::path& camino);

/// The same on a copy of it in memory.
void ConectarCopia(Conexion& conexion, const std::filesystem::path& camino);

}  // namespace trabex::almacen::proyecto
