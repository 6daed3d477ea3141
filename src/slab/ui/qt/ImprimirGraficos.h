#pragma once

#include "drawing/losa/GraficoLosa.h"
#include "reports/montaje/EstadoReportes.h"
#include "reports/ui/SalidaReporte.h"
#include "slab/salida/RecorrerLosas.h"

class QPrinter;
class QWidget;

namespace trabex {

/// Prints the drawings of slabs that `OpcionGrafico` asks for at paper scale, a page each, on a printer that
/// is set up. The selected slab's have the zoom and pan that `pantalla`, the workspace's sheet, has on the
/// screen; those of all slabs are whole. `GenerandoReporte` is up meanwhile. Throws ErrorEjecucion 482 when
/// the printer refuses.
void ImprimirGraficosLosas(QPrinter& impresora, const ProyectoParaReporte& origen, const HojaLosa& pantalla,
                           const std::string& usuario, EstadoReportes& estado);

/// The same on the program's printer, after the system's prompt. Shows what fails.
void PedirEImprimirGraficosLosas(EntornoSalida& entorno, const ProyectoParaReporte& origen,
                                 const HojaLosa& pantalla, EstadoReportes& estado, QWidget* padre);

}  // namespace trabex
