#pragma once

#include "reports/ui/qt/SalidaDelPrograma.h"
#include "shell/qt/Espacio.h"

namespace trabex::marcus::ui::qt {

/// The window of Markus levels in the program. `salida` outlives it.
programa::qt::Espacio EspacioMarcus(reportes::ui::qt::SalidaDelPrograma& salida);

}  // namespace trabex::marcus::ui::qt
