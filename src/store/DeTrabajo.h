#pragma once

#include <filesystem>

#include "store/Conexion.h"

namespace trabex::almacen {

/// Opens a file that only this connection knows and that goes when its work is done: nothing waits for the
/// disk. Fails as AbrirConexion does.
void AbrirDeTrabajo(Conexion& conexion, const std::filesystem::path& camino);

/// Indexes the names of such a file: for elements to be looked up in it. Rows that are only added pay for it.
void IndexarNombres(Conexion& conexion);

}  // namespace trabex::almacen
