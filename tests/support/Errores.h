#pragma once

#include "base/ErrorEjecucion.h"

namespace trabex::prueba {

/// The code of the run-time error that a task ends in; 0 when it ends well.
template <class Tarea>
int CodigoDe(Tarea tarea) {
    try {
        tarea();
    } catch (const ErrorEjecucion& error) {
        return error.Codigo();
    }
    return 0;
}

}  // namespace trabex::prueba
