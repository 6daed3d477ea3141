#pragma once

#include <array>
#include <string>
#include <string_view>

#include "base/DatosGenerales.h"
#include "base/Proyecto.h"
#include "slab/Losa.h"
#include "store/Elementos.h"
#include "store/proyecto/ProyectoAbierto.h"

namespace trabex::almacen::tablas {

using proyecto::ProyectoAbierto;

/// The text that opens the slab list on RegistrosProyecto.
inline constexpr std::string_view ConsultaListaLosas = "SELECT * FROM LosaDatos  ORDER BY Nombre";

inline constexpr std::array<const char*, 3> HijasDeLosa{"LosaEjes", "LosaJuntasD", "LosaTramos"};
inline constexpr TablasDeElemento TablasDeLosa{HijasDeLosa, "LosaDatos"};

/// Adds the row of `LosaG` to its opened set. False when it could not be stored.
bool AgregarGenerales(Recordset& registros, const DatosGenerales& generales);

/// Writes the one row of `LosaG` over the stored one, as one save. False when it could not be stored; the
/// stored row then stands.
bool GuardarGeneralesLosa(Conexion& conexion, const DatosGenerales& generales);

/// Reads `Proyecto` and `LosaG`, seeding each when empty. When the tables can't be reached the values become
/// the seeds.
void LeerDatosGenerales(Conexion& conexion, std::string_view usuario, DatosDelProyecto& datos,
                        DatosGenerales& generales);

/// Sets the section fields of a slab's record, without storing it. A depth of topping of 0 becomes 0.05.
void PonerSeccion(Recordset& registros, losas::Losa& losa);

/// Writes spans, axes (N + 1) and displaced joints under `nombre` over those stored there.
void EscribirElementos(Conexion& conexion, const std::string& nombre, const losas::Losa& losa);

/// Loads the slab on which the list stands. A depth of topping of 0 reads as 0.05; null p1 and L1 read as 0.
void LeerLosa(ProyectoAbierto& proyecto, losas::Losa& losa);

/// Writes `losa` over the stored slab on which the list stands, child rows and all, as one save. False when
/// it could not be stored, also because the list stands on another slab or another program changed what was
/// read; the stored slab then stands as it stood. A depth of topping of 0 becomes 0.05.
bool GuardarLosa(ProyectoAbierto& proyecto, losas::Losa& losa);

}  // namespace trabex::almacen::tablas
