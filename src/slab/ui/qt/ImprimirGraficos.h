#pragma once

#include "drawing/losa/GraficoLosa.h"
#include "reports/montaje/EstadoReportes.h"
#include "reports/ui/SalidaReporte.h"
#include "slab/salida/RecorrerLosas.h"

class QPrinter;
class QWidget;

namespace trabex::losas::ui::qt {

/// Prints the drawings of slabs that `OpcionGrafico` asks for at paper scale, a page each, on a printer that
/// is set up. The selected slab's have the zoom and pan that `pantalla`, the workspace's sheet, has on the
/// screen; those of all slabs are whole. Throws ErrorEjecucion 482 when
/// the printer refuses.
void ImprimirGraficosLosas(QPrinter& impresora, const losas::salida::ProyectoParaReporte& origen,
                           const dibujo::losa::HojaLosa& pantalla, const std::string& usuario,
                           const montaje::EstadoReportes& estado);

/// The same on the program's printer, after the system's prompt. Shows what fails.
void PedirEImprimirGraficosLosas(reportes::ui::EntornoSalida& entorno,
                                 const losas::salida::ProyectoParaReporte& origen,
                                 const dibujo::losa::HojaLosa& pantalla,
                                 const montaje::EstadoReportes& estado, QWidget* padre);

}  // namespace trabex::losas::ui::qt
