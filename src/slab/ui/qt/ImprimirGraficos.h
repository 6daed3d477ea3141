#pragma once

#include "base/Avance.h"
#include "drawing/losa/GraficoLosa.h"
#include "drawing/qt/PapelQt.h"
#include "reports/montaje/EstadoReportes.h"
#include "slab/salida/RecorrerLosas.h"

namespace trabex::losas::ui::qt {

/// Draws the drawings of slabs that `OpcionGrafico` asks for at paper scale, a page each; a slab that is too
/// long for one goes on in further pages. The selected slab's have the zoom and pan that `pantalla`, the
/// workspace's sheet, has on the screen, and then show what it shows on one page; those of all slabs are
/// whole. Throws ErrorEjecucion 482 when the printer refuses, and TrabajoCancelado.
void DibujarGraficosLosas(dibujo::qt::PapelQt& papel, const losas::salida::ProyectoParaReporte& origen,
                          const dibujo::losa::HojaLosa& pantalla, const std::string& usuario,
                          const montaje::EstadoReportes& estado, const Avance& avance = {});

}  // namespace trabex::losas::ui::qt
