#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

namespace trabex {

/// What the windows of report output share. One instance, of the program.
struct EstadoSalida {
    std::int16_t ReporteActual = 0;          ///< layout of the tabular reports, 1 to 5
    bool GraficoHelicoidal = false;          ///< the drawing reports are those of the helical stairs
    bool GraficoAutoportante = false;        ///< or of the self-supporting stairs; neither: the slabs'
    std::uint8_t FormatoSalida = 0;          ///< 0 screen, 1 PDF, 2 HTML, 3 XLS, 4 RTF, 5 printer
    std::filesystem::path ArchivoExportado;  ///< the last file chosen
    std::string Impresora;                   ///< printer chosen for this run; empty: the system's own
};

}  // namespace trabex
