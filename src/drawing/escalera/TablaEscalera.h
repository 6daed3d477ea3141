#pragma once

#include <cstdint>
#include <vector>

#include "drawing/Plano.h"
#include "stairs/FilasEscaleraT.h"

namespace trabex::dibujo::escalera {

inline constexpr double LetraDeTabla = 8;  ///< points

/// Where a table stands on its canvas.
struct SitioDeTabla {
    double Arriba;        ///< row from which its rows are measured
    double Libre;         ///< row from which on it may write
    double Hasta;         ///< row at which it should have ended
    double FinDeRotulos;  ///< its labels end there
};

/// Draws rows of numbers under the stations of a flight and its landing, each number turned and centred on
/// its column, and each label level and centred on its row's base. Columns that are closer together than
/// lines of text move apart, and rows move down, as far as the numbers need not to meet; where they would
/// then leave the canvas, all is written smaller.
void DibujeTabla(const Plano& plano, const escaleras::DatosEscaleraT& escalera,
                 const std::vector<escaleras::FilaDeHoja>& filas, const SitioDeTabla& sitio);

}  // namespace trabex::dibujo::escalera
