#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace trabex::marcus {

/// What the method finds for a panel. The shares add up to 1 only where CX is above 0.
struct RepartoMarcus {
    double CX = 0;  ///< share of the load in direction X
    double CY = 0;
    double WX = 0;  ///< load in direction X, in the unit of the panel's load
    double WY = 0;
};

/// The support cases.
inline constexpr std::int16_t PrimerCaso = 1;
inline constexpr std::int16_t UltimoCaso = 9;

/// How many edges of a panel are fixed at the ends of its strip along each direction; the others are simply
/// supported. The factor of a strip is 5, 2 or 1 for none, one or both ends fixed.
struct BordesDeCaso {
    int EnX;
    int EnY;
};
inline constexpr std::array<BordesDeCaso, UltimoCaso> Bordes{
    {{0, 0}, {1, 1}, {2, 2}, {0, 1}, {1, 0}, {2, 0}, {0, 2}, {2, 1}, {1, 2}}};

/// A rectangular two-way panel. A number that was left empty is NaN.
struct PanoMarcus {
    double Carga = 0;       ///< in whatever unit the engineer takes it to be: it is only shared out
    std::int16_t Caso = 1;  ///< support case, 1 to 9
    double LX = 0;          ///< m
    double LY = 0;          ///< m
    RepartoMarcus Reparto;
};

/// A level of a project and its panels, in the order of their numbers.
struct NivelMarcus {
    std::string Nombre;
    std::int16_t Panos = 0;  ///< number of panels as the list of levels tells it; it plays no part
    std::vector<PanoMarcus> Filas;
};

/// Shares the load of each panel between its two directions by equal deflection of two crossing strips at the
/// centre (H. Marcus, "Die vereinfachte Berechnung biegsamer Platten", 1925), by support case.
///
/// A length that is not above 0 where the formula divides by it gives shares of 0. A case out of 1 … 9
/// repeats the CX of the panel before it, 0 at the first. Throws ErrorEjecucion 13 at an empty number, and 6
/// when the ratio of the lengths is past the range of numbers: that panel and those after it keep the results
/// they had.
void CalculeMarcus(std::span<PanoMarcus> panos);

}  // namespace trabex::marcus
