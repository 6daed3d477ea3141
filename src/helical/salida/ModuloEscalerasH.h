#pragma once

#include "lote/Modulo.h"

namespace trabex::helices::salida {

/// The helical stairs of a project, for whoever writes whole projects.
extern const lote::Modulo ModuloEscalerasH;

}  // namespace trabex::helices::salida
