#pragma once

#include "reports/montaje/EstadoReportes.h"
#include "reports/ui/SalidaReporte.h"
#include "reports/ui/qt/ImpresorasQt.h"
#include "shell/Servicios.h"

namespace trabex::reportes::ui::qt {

/// What the outputs of all elements share for the whole run: the engineer's choices, the report engine and
/// the printers. One instance, of the program.
struct SalidaDelPrograma {
    SalidaDelPrograma();

    montaje::EstadoReportes Opciones;
    EstadoSalida Estado;
    salidas::MotorReportes Motor;  ///< with its PDF writer
    ImpresorasQt Impresoras;

    EntornoSalida Entorno(programa::Aplicacion& aplicacion, const programa::Servicios& servicios);
};

}  // namespace trabex::reportes::ui::qt
