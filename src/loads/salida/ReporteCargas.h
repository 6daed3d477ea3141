#pragma once

#include <vector>

#include "base/Proyecto.h"
#include "loads/AnalisisCarga.h"
#include "loads/Variantes.h"
#include "reports/montaje/BaseTemporal.h"
#include "store/Recordset.h"

namespace trabex::cargas::salida {

/// The list whose analyses are reported. It stays on its record.
struct AnalisisParaReporte {
    Ambito Donde;
    almacen::Conexion& Conexion;
    almacen::Recordset& Lista;
    const DatosDelProyecto& Datos;
};

/// Fills the scratch database with the selected analysis or with all: `Generales`, `AnalisisCargaG`,
/// `AnalisisCargaCP`, `AnalisisCargaCV`. False when they could not be stored; the report is then empty.
bool LLeneDatos(const montaje::EntornoReportes& entorno, const AnalisisParaReporte& origen, bool todos);

/// The same tables from analyses that were read already, of an open scratch database. False when a row could
/// not be written.
bool MontarAnalisis(almacen::Conexion& temporal, const std::vector<const AnalisisCarga*>& analisis);

}  // namespace trabex::cargas::salida
