#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "base/Formatos.h"
#include "drawing/Visor.h"
#include "drawing/losa/EjesDeHoja.h"
#include "drawing/losa/RotulosDeHoja.h"
#include "drawing/losa/TextosDeLosa.h"

namespace trabex::dibujo::losa {

enum VistaLosa : std::uint8_t { VistaGeometria = 0, VistaFuerzas = 1, VistaDiseno = 2 };

/// What the slab workspace's drawing depends on beside the slab itself. `Vista` and what stands from `Tramos`
/// on are computed anew by every redraw.
struct HojaLosa {
    EstadoVista Vista;
    std::uint8_t VistaActual = VistaGeometria;
    OpcionDeCarga OpcionCarga = CargaTotal;
    bool SoloReacciones = false;  ///< the design sheet shows its reactions alone
    bool PorGrupos = false;       ///< shows one group of spans at a time, as GruposDeTramos divides them
    std::size_t Grupo = 1;        ///< the one to show; beyond the last, the last
    Separadores Numeros;

    GrupoDeTramos Tramos;               ///< on show: none of a slab without spans
    EjesDeHoja Ejes;                    ///< of the whole slab
    std::vector<BandaDeHoja> Bandas;    ///< from top to bottom
    std::vector<RotuloDeHoja> Rotulos;  ///< every text of the sheet
};

}  // namespace trabex::dibujo::losa
