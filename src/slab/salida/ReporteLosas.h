#pragma once

#include "reports/montaje/BaseTemporal.h"
#include "reports/montaje/EstadoReportes.h"
#include "slab/salida/RecorrerLosas.h"

namespace trabex::losas::salida {

/// Title of the slabs' reports.
inline constexpr const char* TituloReporteLosas = "ANALISIS Y DISEÑO DE LOSAS";

/// Fills the scratch database with the results of the selected slab or of all (`OpcionExportarLosas`):
/// `Generales`, `LosaG`, `LosaDatos`, `LosaEjes`, `LosaTramos`. `GenerandoReporte` is up meanwhile. False
/// when they could not be stored; the report is then empty.
bool LLeneResultados(const montaje::EntornoReportes& entorno, const ProyectoParaReporte& origen,
                     montaje::EstadoReportes& estado);

}  // namespace trabex::losas::salida
