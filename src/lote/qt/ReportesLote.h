#pragma once

#include <filesystem>

namespace trabex::lote::qt {

/// Writes the results of all slabs and their drawings, each as PDF, HTML, XLS and RTF, into `reportes/` of a
/// folder, and leaves the scratch database of the results in `Trabajo/` there. `programa` holds templates and
/// layouts. Needs the toolkit's application. Throws ErrorEjecucion when one can't be written.
void EscribirReportes(const std::filesystem::path& programa, const std::filesystem::path& proyecto,
                      const std::filesystem::path& carpeta);

}  // namespace trabex::lote::qt
