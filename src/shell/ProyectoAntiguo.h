#pragma once

#include <filesystem>

#include "shell/Servicios.h"

namespace trabex::programa {

/// Before a project is opened: one of the older format is converted in its place when the engineer agrees;
/// the old file stays beside it, under the name that the question says. False when it is not to be opened:
/// refused, or it can't be read, which is said. True for any other file, whatever it is.
bool HacerLegible(const Servicios& servicios, const std::filesystem::path& archivo);

}  // namespace trabex::programa
