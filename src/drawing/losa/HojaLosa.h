#pragma once

#include <cstdint>

#include "base/Formatos.h"
#include "drawing/Visor.h"
#include "drawing/losa/EjesDeHoja.h"
#include "drawing/losa/TextosDeLosa.h"

namespace trabex::dibujo::losa {

enum VistaLosa : std::uint8_t { VistaGeometria = 0, VistaFuerzas = 1, VistaDiseno = 2 };

/// What the slab workspace's drawing depends on beside the slab itself. `Vista` and the places of the axes
/// are computed anew by every redraw.
struct HojaLosa {
    EstadoVista Vista;
    std::uint8_t VistaActual = VistaGeometria;
    OpcionDeCarga OpcionCarga = CargaTotal;
    bool SoloReacciones = false;  ///< the design sheet shows its reactions alone
    Separadores Numeros;
    EjesDeHoja Ejes;
};

}  // namespace trabex::dibujo::losa
