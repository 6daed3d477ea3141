#pragma once

#include "base/Avance.h"
#include "reports/montaje/BaseTemporal.h"
#include "reports/montaje/EstadoReportes.h"
#include "slab/ValoresLosa.h"
#include "slab/salida/RecorrerLosas.h"
#include "store/Insercion.h"

namespace trabex::losas::salida {

/// Title of the slabs' reports.
inline constexpr const char* TituloReporteLosas = "ANALISIS Y DISEÑO DE LOSAS";

/// The scratch tables of slabs on their way: `LosaG` with the factors, and `LosaDatos`, `LosaEjes`,
/// `LosaTramos`, emptied and open for the rows of each slab. Must not outlive its connection.
class MontajeDeLosas {
  public:
    MontajeDeLosas(almacen::Conexion& temporal, const DatosGenerales& generales);
    void Agregar(const LosaCalculada& losa);

  private:
    almacen::Insercion datos_, ejes_, tramos_;
};

/// Fills the scratch database with the results of the selected slab or of all (`OpcionExportarLosas`):
/// `Generales`, `LosaG`, `LosaDatos`, `LosaEjes`, `LosaTramos`. False
/// when they could not be stored; the report is then empty, as after a TrabajoCancelado.
bool LLeneResultados(const montaje::EntornoReportes& entorno, const ProyectoParaReporte& origen,
                     const montaje::EstadoReportes& estado, const Avance& avance = {});

}  // namespace trabex::losas::salida
