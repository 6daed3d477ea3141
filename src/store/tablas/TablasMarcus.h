#pragma once

#include <array>
#include <string_view>

#include "markus/CalculeMarcus.h"
#include "store/Elementos.h"
#include "store/proyecto/ProyectoAbierto.h"

namespace trabex::almacen::tablas {

using proyecto::ProyectoAbierto;

/// The text that opens the list of Markus levels on RegistrosProyecto.
inline constexpr std::string_view ConsultaListaMarcus = "SELECT * FROM MarcusDatos  ORDER BY Nombre";

inline constexpr std::array<const char*, 1> HijasDeMarcus{"Marcus"};
inline constexpr TablasDeElemento TablasDeMarcus{HijasDeMarcus, "MarcusDatos"};

/// Loads the level on which the list stands. Its stored rows decide how many panels there are, whatever the
/// list tells; a panel without a case is of case 1; results are not stored and come back as zeros.
void LeerMarcus(ProyectoAbierto& proyecto, marcus::NivelMarcus& nivel);

/// Writes a level's panels over the stored ones, numbered from 1, and their count into the list, as one save.
/// The list then stands on the level. False when it could not be stored; what was stored then stands. A
/// project without levels stores nothing.
bool GuardarMarcus(ProyectoAbierto& proyecto, const marcus::NivelMarcus& nivel);

}  // namespace trabex::almacen::tablas
