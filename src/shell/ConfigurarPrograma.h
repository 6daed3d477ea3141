#pragma once

#include "shell/Aplicacion.h"
#include "shell/Servicios.h"

namespace trabex::programa {

/// What " Aceptar " of the settings window came to.
enum class ResultadoConfiguracion { SigueAbierta, Guardada, SinGuardar };

/// Asks whether to keep the chosen settings. On yes they are stored and become the current ones. A file that
/// can't be written shows the fixed error form and leaves the window open; of a picture whose path is too
/// long only the other settings are stored.
ResultadoConfiguracion AceptarConfiguracion(Aplicacion& aplicacion, const Servicios& servicios,
                                            const Tapiz& elegida);

}  // namespace trabex::programa
