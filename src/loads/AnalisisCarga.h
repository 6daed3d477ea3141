#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace trabex::cargas {

/// A weight by its name: an item of an analysis, its variable load, or a line of a list of unit weights.
struct PesoUnitario {
    std::string Descripcion;
    std::int32_t Peso = 0;  ///< whole kgf/m²

    bool operator==(const PesoUnitario&) const = default;
};

/// A named tally of the service loads on a floor or roof slab.
struct AnalisisCarga {
    std::int32_t ID = 0;  ///< ties it to its items; kept when it is captured
    std::string Descripcion;
    double Carga = 0;     ///< total load, kgf/m²
    double CP = 0;        ///< sum of the permanent items, kgf/m²
    std::int32_t CV = 0;  ///< variable load, kgf/m²
    double REL = 0;       ///< CV / CP, or 0 without permanent load
    std::vector<PesoUnitario> Permanentes;
    PesoUnitario Variable;  ///< without a name it counts, and no row of it is stored
};

/// What the edit window shows beneath its items.
struct SumasDeCarga {
    double Permanente = 0;  ///< kgf/m²
    double Total = 0;       ///< with the variable load, kgf/m²
};
SumasDeCarga Recalcule(const AnalisisCarga& analisis);

/// Sets Carga, CP, CV and REL from the items and the variable load, as a save stores them.
void Totalice(AnalisisCarga& analisis);

}  // namespace trabex::cargas
