#pragma once

#include <string>
#include <string_view>

#include "slab/Losa.h"
#include "store/tablas/TablasProyecto.h"

namespace trabex::almacen::tablas {

/// The text that opens the slab list on RegistrosProyecto.
inline constexpr std::string_view ConsultaListaLosas = "SELECT * FROM LosaDatos  ORDER BY Nombre";

/// Sets the section fields of a slab's record, without storing it. A depth of topping of 0 becomes 0.05.
void PonerSeccion(Recordset& registros, losas::Losa& losa);

/// Writes spans, axes (N + 1) and displaced joints under `nombre` over those stored there.
void EscribirElementos(Conexion& conexion, const std::string& nombre, const losas::Losa& losa);

/// Loads the slab on which the list stands. A depth of topping of 0 reads as 0.05; null p1 and L1 read as 0.
void LeerLosa(ProyectoAbierto& proyecto, losas::Losa& losa);

/// Writes `losa` over the stored slab on which the list stands, child rows and all, as one save. False when
/// it could not be stored; the stored slab then stands as it stood. A depth of topping of 0 becomes 0.05.
bool GuardarLosa(ProyectoAbierto& proyecto, losas::Losa& losa);

}  // namespace trabex::almacen::tablas
