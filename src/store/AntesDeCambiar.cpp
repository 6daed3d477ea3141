#include "store/AntesDeCambiar.h"

#include <utility>

#include "store/Motor.h"

namespace trabex::almacen {

void AntesDeCambiar(Conexion& conexion, std::function<void()> accion) {
    if (conexion.motor()) conexion.motor()->AntesDeCambiar(std::move(accion));
}

}  // namespace trabex::almacen
