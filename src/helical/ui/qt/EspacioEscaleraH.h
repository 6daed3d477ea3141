#pragma once

#include "reports/ui/qt/SalidaDelPrograma.h"
#include "shell/qt/Espacio.h"

namespace trabex::helices::ui::qt {

/// The workspace of helical stairs in the program. `salida` outlives it.
programa::qt::Espacio EspacioEscaleraH(reportes::ui::qt::SalidaDelPrograma& salida);

}  // namespace trabex::helices::ui::qt
