#pragma once

#include <filesystem>

namespace trabex {

/// Writes the three sheets of every slab of a project as `<number>-<name>-{geometria,fuerzas,diseno}.png`
/// into a folder, on the surface of reports. Needs the toolkit's application. Returns how many pictures;
/// throws ErrorEjecucion when one can't be written.
std::size_t EscribirHojas(const std::filesystem::path& proyecto, const std::filesystem::path& carpeta);

}  // namespace trabex
