#pragma once

#include "reports/ui/qt/SalidaDelPrograma.h"
#include "shell/qt/Modulo.h"

namespace trabex::losas::ui::qt {

/// The slab workspace in the program. `salida` outlives it.
programa::qt::Modulo ModuloLosas(reportes::ui::qt::SalidaDelPrograma& salida);

}  // namespace trabex::losas::ui::qt
