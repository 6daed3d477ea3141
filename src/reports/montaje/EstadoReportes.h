#pragma once

#include <cstdint>
#include <filesystem>

#include "reports/montaje/PapelDeGraficos.h"

namespace trabex::montaje {

/// What the dialogs choose for a report. One instance for the program, passed by reference.
struct EstadoReportes {
    std::uint8_t OpcionExportarLosas = 0;     ///< 0 the selected slab, 1 all slabs
    bool ExportarDesplazamientos = false;     ///< the report shows the joints' displacements
    std::uint8_t OpcionGrafico = 0;           ///< which drawings: see GraficosLosas.h
    PapelDeGraficos Papel{};                  ///< of the drawings whose dialog asks for it
    std::filesystem::path CarpetaGraficos{};  ///< where a picture was last saved in this run; empty: nowhere
};

}  // namespace trabex::montaje
