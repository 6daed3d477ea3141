#pragma once

#include <filesystem>

#include "shell/Aplicacion.h"
#include "shell/Carpetas.h"
#include "shell/Plataforma.h"

namespace trabex::programa {

/// Folder of the company's programs, in the documents folder or in the root that machines share.
inline constexpr const char* CarpetaComun = "Nodara Software";

/// Finds the folders, makes those that are missing, copies the example project, the wallpaper and the shared
/// load database where they are absent, and reads the settings. What can't be made shows up later, where it
/// is used.
void PrepararArranque(Plataforma& plataforma, Carpetas& carpetas, Aplicacion& aplicacion);

/// Deletes a wallpaper of the default name that is not the delivered one, and reads the settings. The start
/// does it after its copies: a new edition's picture comes with those of the next start.
void LeerPreferencias(const Carpetas& carpetas, Aplicacion& aplicacion);

/// The settings file and the wallpaper of a new installation.
std::filesystem::path ArchivoTapiz(const Carpetas& carpetas);
std::filesystem::path ImagenPorDefecto(const Carpetas& carpetas);

}  // namespace trabex::programa
