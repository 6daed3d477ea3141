#pragma once

#include <functional>

#include "base/Proyecto.h"
#include "reports/BaseTemporal.h"
#include "reports/EstadoReportes.h"
#include "slab/Losa.h"
#include "slab/ResultadosLosa.h"
#include "store/TablasLosa.h"

namespace trabex {

/// A project whose slabs are to be reported, as the workspace or the batch program has it open. The report
/// reads and calculates on records of its own: the slab on the screen and its results stay as they are.
struct ProyectoParaReporte {
    ProyectoAbierto& Proyecto;
    const DatosDelProyecto& Datos;
    const DatosGenerales& Generales;
    int FilaSeleccionada = 1;  ///< position of the workspace's selected slab in the list
};

/// Title of the slabs' reports.
inline constexpr const char* TituloReporteLosas = "ANALISIS Y DISEÑO DE LOSAS";

/// Visits the selected slab, or all those of the list in its order, each read and calculated anew: a report
/// never tells what is merely on the screen. The list comes back to where it was after all of them, and stays
/// on the selected one after it alone.
void RecorrerLosas(const ProyectoParaReporte& origen, bool todas,
                   const std::function<void(const Losa&, const ResultadosLosa&)>& visitar);

/// Fills the scratch database with the results of the selected slab or of all (`OpcionExportarLosas`):
/// `Generales`, `LosaG`, `LosaDatos`, `LosaEjes`, `LosaTramos`. `GenerandoReporte` is up meanwhile. False
/// when they could not be stored; the report is then empty.
bool LLeneResultados(const EntornoReportes& entorno, const ProyectoParaReporte& origen,
                     EstadoReportes& estado);

}  // namespace trabex
