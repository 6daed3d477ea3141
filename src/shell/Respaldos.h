#pragma once

#include <filesystem>
#include <string>

#include "shell/Aplicacion.h"

namespace trabex::programa {

/// Backups of projects, taken before what can lose something: "obra 2024-03-07 10.15.30.los". Of each name
/// the last ones stay.
inline constexpr std::size_t RespaldosQueQuedan = 20;

/// Copies a project into the folder of backups. What can't be copied holds up no work.
void Respaldar(const std::filesystem::path& carpeta, const std::filesystem::path& proyecto);

/// The file name of the project that a backup was taken of.
std::string NombreRespaldado(const std::filesystem::path& respaldo);

/// Connects to the current project; before the first change of a day it is copied into the folder of backups.
void ConectarProyecto(const Aplicacion& aplicacion, almacen::Conexion& conexion);

}  // namespace trabex::programa
