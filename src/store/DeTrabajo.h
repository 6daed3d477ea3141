#pragma once

#include <filesystem>

#include "store/Conexion.h"

namespace trabex::almacen {

/// Opens a file that only this connection knows and that goes when its work is done: nothing waits for the
/// disk, and its names are indexed. Fails as AbrirConexion does.
void AbrirDeTrabajo(Conexion& conexion, const std::filesystem::path& camino);

}  // namespace trabex::almacen
