#pragma once

#include <filesystem>
#include <string_view>
#include <system_error>

#include "base/ErrorEjecucion.h"

namespace trabex {

/// The run-time error that stands for what the operating system answered.
CodigoError ErrorDeSistema(const std::error_code& error);

/// Writes a whole file beside its place and then renames it: `camino` holds its old bytes or the new ones,
/// never a part. Throws ErrorEjecucion when it can't.
void EscribirArchivo(const std::filesystem::path& camino, std::string_view bytes);

}  // namespace trabex
