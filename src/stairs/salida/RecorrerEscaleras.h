#pragma once

#include <functional>

#include "stairs/ValoresEscaleraT.h"
#include "store/proyecto/ProyectoAbierto.h"

namespace trabex::escaleras::salida {

/// Visits all stairs of the list in its order, each with its row, read and calculated anew on records of its
/// own: what the workspace has on the screen stays as it is. The list comes back to where it stood.
void RecorrerEscaleras(almacen::proyecto::ProyectoAbierto& proyecto, const DatosGenerales& generales,
                       const std::function<void(int fila, const EscaleraCalculada&)>& accion);

}  // namespace trabex::escaleras::salida
