#pragma once

#include "helical/DatosEscaleraH.h"
#include "helical/ResultadosEscaleraH.h"

namespace trabex::helices {

/// A helical stair with what was calculated of it: what drawings, panels and reports show.
struct EscaleraHCalculada {
    const DatosEscaleraH& Datos;
    const ResultadosEscaleraH& Resultados;
};

}  // namespace trabex::helices
