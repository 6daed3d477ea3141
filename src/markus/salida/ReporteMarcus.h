#pragma once

#include <span>
#include <string>

#include "base/Proyecto.h"
#include "markus/CalculeMarcus.h"
#include "reports/montaje/BaseTemporal.h"

namespace trabex::marcus::salida {

/// Title of the report of a level.
inline constexpr const char* TituloReporteMarcus = "COEFICIENTES DE REPARTICION DE LA CARGA";

/// Fills the scratch table `Marcus` with panels, numbered from 1. A number that there is not stays null.
void MontarPanos(almacen::Conexion& temporal, std::span<const PanoMarcus> panos);

/// Fills the scratch database with a level and its panels: `Generales`, `Marcus`. False when they could not
/// be stored; the report is then empty.
bool LLeneDatos(const montaje::EntornoReportes& entorno, const DatosDelProyecto& datos,
                const std::string& nivel, std::span<const PanoMarcus> panos);

}  // namespace trabex::marcus::salida
