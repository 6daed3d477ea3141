#pragma once

#include "lote/Modulo.h"

namespace trabex::cargas::salida {

/// The load analyses of a project, for whoever writes whole projects.
extern const lote::Modulo ModuloCargas;

}  // namespace trabex::cargas::salida
