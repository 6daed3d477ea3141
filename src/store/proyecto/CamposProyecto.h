#pragma once

#include <tuple>

#include "base/Proyecto.h"
#include "store/Campos.h"

namespace trabex::almacen::proyecto {

inline constexpr std::tuple CamposProyecto{
    Campo{"Proyecto", &DatosDelProyecto::Proyecto},     Campo{"Propietario", &DatosDelProyecto::Propietario},
    Campo{"Calculista", &DatosDelProyecto::Calculista}, Campo{"Fecha", &DatosDelProyecto::Fecha},
    Campo{"Cliente", &DatosDelProyecto::Cliente},       Campo{"Comentario", &DatosDelProyecto::Comentario}};

}  // namespace trabex::almacen::proyecto
