#pragma once

#include <filesystem>

#include "base/Proyecto.h"
#include "lote/Faltas.h"
#include "lote/Marcha.h"
#include "lote/Modulo.h"

namespace trabex::lote::qt {

/// Writes the report of results of a list and, if `dibujos`, that of its drawings, each as PDF, HTML, XLS and
/// RTF, into `reportes/` of a folder, and leaves the scratch database of its last report in `Trabajo/<key of
/// the kind>/` there. `programa` holds templates and layouts. One that can't be written is noted and the
/// others are written. Needs the toolkit's application.
void EscribirReportes(const std::filesystem::path& programa, const Lista& lista,
                      const DatosDelProyecto& datos, bool dibujos, const std::filesystem::path& carpeta,
                      const Marcha& marcha, Faltas& faltas);

}  // namespace trabex::lote::qt
