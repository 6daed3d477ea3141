#pragma once

#include <functional>

#include "store/Conexion.h"

namespace trabex::almacen {

/// Calls `accion` before each save of a connection, and before each statement outside of one that changes its
/// database.
void AntesDeCambiar(Conexion& conexion, std::function<void()> accion);

}  // namespace trabex::almacen
