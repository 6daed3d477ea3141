#pragma once

#include "lote/Modulo.h"

namespace trabex::escaleras::salida {

/// The self-supporting stairs of a project, for whoever writes whole projects.
extern const lote::Modulo ModuloEscalerasT;

}  // namespace trabex::escaleras::salida
