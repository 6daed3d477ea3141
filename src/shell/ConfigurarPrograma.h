#pragma once

#include <functional>

#include "shell/Aplicacion.h"
#include "shell/Servicios.h"

namespace trabex::programa {

/// What " Aceptar " of the settings window came to.
enum class ResultadoConfiguracion { SigueAbierta, Guardada, SinGuardar };

/// Asks whether to keep the chosen settings. On yes they are stored and become the current ones. A file that
/// can't be written shows the fixed error form and leaves the window open; of a picture whose path is too
/// long only the other settings are stored. `antes` writes what the settings name and has no file yet, or
/// throws.
ResultadoConfiguracion AceptarConfiguracion(
    Aplicacion& aplicacion, const Servicios& servicios, const Tapiz& elegida,
    const std::function<void()>& antes = [] {});

}  // namespace trabex::programa
