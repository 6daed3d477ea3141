#pragma once

#include "reports/ui/qt/SalidaDelPrograma.h"
#include "shell/qt/Espacio.h"

namespace trabex::losas::ui::qt {

/// The slab workspace in the program. `salida` outlives it.
programa::qt::Espacio EspacioLosas(reportes::ui::qt::SalidaDelPrograma& salida);

}  // namespace trabex::losas::ui::qt
