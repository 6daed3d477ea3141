#pragma once

#include <span>

#include "base/Proyecto.h"
#include "drawing/helice/HojaHelice.h"
#include "helical/EscaleraHCalculada.h"
#include "reports/montaje/BaseTemporal.h"
#include "reports/montaje/PanelProgreso.h"
#include "reports/montaje/SuperficieOculta.h"

namespace trabex::helices::salida {

/// Titles of the two reports of helical stairs: of drawing and panels, and of the table form.
inline constexpr const char* TituloGraficosH = "ANALISIS Y DISEÑO DE LOSAS Y VIGAS HELICOIDALES";
inline constexpr const char* TituloReporteH = "ANALISIS Y DISEÑO DE LOSAS HELICOIDALES";

/// Stages the drawing and the panels of a calculated stair: `Generales`, its drawing as it is turned on the
/// screen in `Grafico` and in the file `Foto`, `EscaleraH`, `EscaleraH1S`. The panel shows meanwhile. False
/// when they could not be stored; the report is then empty.
bool GuardeGraficos(const montaje::EntornoReportes& entorno, const DatosDelProyecto& datos,
                    const EscaleraHCalculada& escalera, const dibujo::helice::HojaHelice& pantalla,
                    montaje::SuperficieOculta& superficie, montaje::PanelProgreso& panel);

/// Stages a calculated stair for the table form: `Generales`, `EscaleraH`, `EscaleraHS`. False as above.
bool LLenarDatos(const montaje::EntornoReportes& entorno, const DatosDelProyecto& datos,
                 const EscaleraHCalculada& escalera);

/// Put rows in the place of those of the scratch tables, for any number of stairs. Of a calculation that a
/// fault ended no number is reported. `EscaleraH`: a row a stair, its data and what was calculated of the
/// whole.
void LleneEscaleraH(almacen::Conexion& temporal, std::span<const EscaleraHCalculada> escaleras);
/// `EscaleraHS`: a row a station, from the records; upper half and lower half, by degrees from the centre.
void LleneEscaleraHS(almacen::Conexion& temporal, std::span<const EscaleraHCalculada> escaleras);
/// `EscaleraH1S`: a row a station, from the two panels as they are shown, numbered from 1 in each stair.
void LleneEscaleraH1S(almacen::Conexion& temporal, std::span<const EscaleraHCalculada> escaleras);

}  // namespace trabex::helices::salida
