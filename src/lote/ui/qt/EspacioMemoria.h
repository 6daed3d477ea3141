#pragma once

#include "lote/Calculo.h"
#include "shell/qt/Espacio.h"

namespace trabex::lote::ui::qt {

/// The command of the calculation memo: asks for a file, calculates the whole project and writes the memo,
/// showing how far it is. Closing the panel stops it, and no file is left.
programa::qt::Espacio EspacioMemoria(Modulos modulos);

}  // namespace trabex::lote::ui::qt
