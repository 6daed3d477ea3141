#pragma once

#include <cstdint>
#include <string>

namespace trabex::helices {

/// A helical stair or beam of rectangular section, fixed at both ends. One without stored data is of zeros,
/// at an interval of 5 degrees.
struct DatosEscaleraH {
    std::string Nombre;
    std::string Titulo;      ///< printed on the drawings and the report
    double B = 0;            ///< width of the flight, m
    double T = 0;            ///< thickness, m
    double H = 0;            ///< rise between the supports, m
    double R = 0;            ///< radius of the axis in plan, m
    double Angulo = 0;       ///< plan development, degrees
    std::int32_t W = 0;      ///< total service load, kgf per metre of plan arc
    std::int16_t Inter = 5;  ///< interval between stations, degrees
};

/// The values that the data window offers for a stair just created; they are stored only if it saves.
inline DatosEscaleraH EscaleraHNuevaDe(const std::string& nombre, const std::string& titulo) {
    return {nombre, titulo, 1.5, 0.15, 3, 2.5, 260, 1500, 5};
}

}  // namespace trabex::helices
