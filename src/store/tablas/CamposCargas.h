#pragma once

#include <tuple>

#include "loads/AnalisisCarga.h"
#include "store/Campos.h"

namespace trabex::almacen::tablas {

/// What a save of its items sets in the list of analyses.
inline constexpr std::tuple CamposTotales{
    Campo{"Carga", &cargas::AnalisisCarga::Carga}, Campo{"CP", &cargas::AnalisisCarga::CP},
    Campo{"CV", &cargas::AnalisisCarga::CV}, Campo{"REL", &cargas::AnalisisCarga::REL}};

/// The list of analyses: `AnalisisCargaG` of a project, `Generales` of the shared database.
inline constexpr auto CamposAnalisis =
    std::tuple_cat(std::tuple{Campo{"ID", &cargas::AnalisisCarga::ID},
                              Campo{"Descripcion", &cargas::AnalisisCarga::Descripcion}},
                   CamposTotales);

/// Items, variable loads, and the lists of unit weights.
inline constexpr std::tuple CamposPeso{Campo{"Descripcion", &cargas::PesoUnitario::Descripcion},
                                       Campo{"Peso", &cargas::PesoUnitario::Peso}};

}  // namespace trabex::almacen::tablas
