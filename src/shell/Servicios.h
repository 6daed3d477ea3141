#pragma once

#include "shell/CajaMensajes.h"
#include "shell/Carpetas.h"
#include "shell/DialogosArchivo.h"
#include "shell/Plataforma.h"

namespace trabex::programa {

/// What every window asks of the world around it.
struct Servicios {
    CajaMensajes& Caja;
    DialogosArchivo& Dialogos;
    Plataforma& Sistema;
    const programa::Carpetas& Carpetas;
};

/// The error of a file that nothing on the machine opens.
ErrorEjecucion SinProgramaQueAbra();

/// Opens a file with the desktop's program, or a folder in its file manager; where there is nothing to open,
/// or nothing that opens it, says so.
bool AbrirODecir(const Servicios& servicios, const std::filesystem::path& camino);

}  // namespace trabex::programa
