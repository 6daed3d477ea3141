#pragma once

#include <array>
#include <string_view>

#include "base/DatosGenerales.h"
#include "base/Proyecto.h"
#include "helical/DatosEscaleraH.h"
#include "stairs/DatosEscaleraT.h"
#include "store/Elementos.h"
#include "store/proyecto/ProyectoAbierto.h"

namespace trabex::almacen::tablas {

using proyecto::ProyectoAbierto;

/// The two kinds of stair. Each has its list, its data and its design parameters, in tables of its own.
enum class ClaseEscalera { Autoportante, Helicoidal };

/// The texts that open each list of stairs on RegistrosProyecto.
inline constexpr std::string_view ConsultaListaEscalerasT = "SELECT * FROM EscaleraTDatos ORDER BY Nombre";
inline constexpr std::string_view ConsultaListaEscalerasH = "SELECT * FROM EscaleraHDatos  ORDER BY Nombre";

inline constexpr std::array<const char*, 1> HijasDeEscaleraT{"EscaleraT"};
inline constexpr TablasDeElemento TablasDeEscaleraT{HijasDeEscaleraT, "EscaleraTDatos"};
inline constexpr std::array<const char*, 1> HijasDeEscaleraH{"EscaleraH"};
inline constexpr TablasDeElemento TablasDeEscaleraH{HijasDeEscaleraH, "EscaleraHDatos"};

/// Reads `Proyecto` and `EscaleraTG` or `EscaleraHG` into the working values, seeding each table when empty:
/// 250, 4200, 0.025, 0.9, 0.75, 1.55. The factors of slabs stay as they were. When the tables can't be
/// reached the values become the seeds.
void LeaDatosGenerales(Conexion& conexion, ClaseEscalera clase, std::string_view usuario,
                       DatosDelProyecto& datos, DatosGenerales& generales);

/// Writes the one row of `EscaleraTG` or `EscaleraHG` over the stored one, as one save. False when it could
/// not be stored; the stored row then stands.
bool GuardarGenerales(Conexion& conexion, ClaseEscalera clase, const DatosGenerales& generales);

/// Loads the stair on which the list stands. False when it has no row of data: its values are then zeros (and
/// an interval of 5 degrees).
bool LeaDatosEscalera(ProyectoAbierto& proyecto, escaleras::DatosEscaleraT& escalera);
bool LeaDatosEscalera(ProyectoAbierto& proyecto, helices::DatosEscaleraH& escalera);

/// Writes a stair's row of data, by its name, over the stored one, as one save. False when it could not be
/// stored; the stored row then stands.
bool GuardarEscalera(Conexion& conexion, const escaleras::DatosEscaleraT& escalera);
bool GuardarEscalera(Conexion& conexion, const helices::DatosEscaleraH& escalera);

}  // namespace trabex::almacen::tablas
