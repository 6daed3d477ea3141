#pragma once

#include "reports/ui/qt/SalidaDelPrograma.h"
#include "shell/qt/Espacio.h"

namespace trabex::cargas::ui::qt {

/// The load analyses of the project in the program, and those that all projects share, which need no project.
/// `salida` outlives them.
programa::qt::Espacio EspacioAnalisisCargaP(reportes::ui::qt::SalidaDelPrograma& salida);
programa::qt::Espacio EspacioAnalisisCarga(reportes::ui::qt::SalidaDelPrograma& salida);

}  // namespace trabex::cargas::ui::qt
