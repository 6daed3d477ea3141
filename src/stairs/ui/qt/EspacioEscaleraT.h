#pragma once

#include "reports/ui/qt/SalidaDelPrograma.h"
#include "shell/qt/Espacio.h"

namespace trabex::escaleras::ui::qt {

/// The workspace of self-supporting stairs in the program. `salida` outlives it.
programa::qt::Espacio EspacioEscaleraT(reportes::ui::qt::SalidaDelPrograma& salida);

}  // namespace trabex::escaleras::ui::qt
