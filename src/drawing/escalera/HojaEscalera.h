#pragma once

#include <cstdint>
#include <string>

#include "base/Formatos.h"
#include "drawing/Visor.h"
#include "drawing/escalera/EstiloEscalera.h"
#include "stairs/ValoresEscaleraT.h"

namespace trabex::dibujo::escalera {

enum VistaEscalera : std::uint8_t {
    VistaGeometria = 0,
    VistaSolicitaciones = 1,
    VistaDiseno = 2,
    VistaReacciones = 3,
};

/// What the stair workspace's drawing depends on beside the stair itself. `Vista` is computed anew by every
/// redraw.
struct HojaEscalera {
    EstadoVista Vista;
    std::uint8_t VistaActual = VistaGeometria;
    Separadores Numeros;
};

}  // namespace trabex::dibujo::escalera
