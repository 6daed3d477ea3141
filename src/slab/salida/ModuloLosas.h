#pragma once

#include "lote/Modulo.h"

namespace trabex::losas::salida {

/// The slabs of a project, for whoever writes whole projects.
extern const lote::Modulo ModuloLosas;

}  // namespace trabex::losas::salida
