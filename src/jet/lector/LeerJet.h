#pragma once

#include <filesystem>

#include "jet/Receptor.h"

namespace trabex::jet::lector {

/// Gives every table of users of a Jet 3 or Jet 4 database to `receptor`, with mdbtools' library. False when
/// the file is no such database or its catalogue can't be read.
///
/// The library trusts what it reads: a damaged file may end the process or keep it forever. To be called in a
/// process of its own, with limits.
bool LeerJet(const std::filesystem::path& archivo, Receptor& receptor);

}  // namespace trabex::jet::lector
