#pragma once

#include <filesystem>

namespace trabex::lote::qt {

/// Writes the three sheets of every slab of a project as `<number>-<name>-{geometria,fuerzas,diseno}.png`
/// into a folder, on the surface of reports, and as the pages of `<number>-<name>-papel.pdf`. Draws on
/// `hilos` threads; needs the toolkit's application. Throws ErrorEjecucion when one can't be written.
void EscribirHojas(const std::filesystem::path& proyecto, unsigned hilos,
                   const std::filesystem::path& carpeta);

}  // namespace trabex::lote::qt
