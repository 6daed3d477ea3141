#pragma once

#include <vector>

#include "loads/ui/Entrada.h"
#include "shell/qt/TablaDatos.h"

namespace trabex::cargas::ui::qt {

/// The columns of a grid of weights over `lineas`. `poner` takes what is entered into a cell.
std::vector<programa::qt::ColumnaDatos> ColumnasDePesos(
    const std::vector<PesoUnitario>& lineas,
    const std::function<bool(int fila, CampoDePeso campo, const std::string& texto)>& poner);

}  // namespace trabex::cargas::ui::qt
