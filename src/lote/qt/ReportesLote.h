#pragma once

#include <filesystem>

#include "base/Proyecto.h"
#include "lote/Faltas.h"
#include "lote/Marcha.h"
#include "lote/Modulo.h"
#include "lote/qt/Pinturas.h"

namespace trabex::lote::qt {

/// Writes the report of results of a list and, if `dibujos`, that of its drawings, each as PDF, HTML, XLS and
/// RTF, into `reportes/` of a folder, and leaves the scratch database of its last report in `Trabajo/<key of
/// the kind>/` there. `programa` holds templates and layouts. One that can't be written is noted and the
/// others are written. Its drawings are kept in `pinturas` where they serve for more. Needs the toolkit's
/// application.
void EscribirReportes(const std::filesystem::path& programa, const Lista& lista,
                      const DatosDelProyecto& datos, bool dibujos, const std::filesystem::path& carpeta,
                      const Marcha& marcha, Faltas& faltas, Pinturas* pinturas = nullptr);

}  // namespace trabex::lote::qt
