#pragma once

#include <cstdint>
#include <string>

namespace trabex::escaleras {

/// A self-supporting stair: two equal flights side by side that meet at a landing without support of its own,
/// fixed at the foot of the lower flight and at the head of the upper one. A stair without stored data is one
/// of zeros.
struct DatosEscaleraT {
    std::string Nombre;
    std::string Titulo;    ///< printed on the drawings and the report
    double L = 0;          ///< plan length of one flight, m
    double B = 0;          ///< width of one flight, and plan depth of the landing, m
    double H = 0;          ///< total rise; each flight rises half of it, m
    double HT = 0;         ///< thickness of the flight, m
    double Hd = 0;         ///< thickness of the landing, m
    std::int32_t WT = 0;   ///< total load on the flight, kgf per metre of plan length
    std::int32_t Wd = 0;   ///< total load on the landing, kgf/m
    std::int32_t WpD = 0;  ///< permanent load on the landing, kgf/m
};

/// The values that the data window offers for a stair just created; they are stored only if it saves.
inline DatosEscaleraT EscaleraTNuevaDe(const std::string& nombre, const std::string& titulo) {
    return {nombre, titulo, 2.7, 1.5, 3, 0.2, 0.2, 2076, 1865, 1040};
}

}  // namespace trabex::escaleras
