#pragma once

#include "base/AlSalir.h"
#include "store/Recordset.h"

namespace trabex::almacen {

/// Puts a set back on the record it stands on, when what it returns goes out of scope.
inline auto PosicionGuardada(Recordset& registros) {
    return AlSalir([&registros, posicion = registros.Posicion()] { registros.MoverA(posicion); });
}

}  // namespace trabex::almacen
