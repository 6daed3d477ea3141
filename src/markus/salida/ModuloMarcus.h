#pragma once

#include "lote/Modulo.h"

namespace trabex::marcus::salida {

/// The levels of Markus panels of a project, for whoever writes whole projects.
extern const lote::Modulo ModuloMarcus;

}  // namespace trabex::marcus::salida
