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

}  // namespace trabex::programa
