#pragma once

#include <string_view>

#include "drawing/Plano.h"
#include "stairs/ValoresEscaleraT.h"

namespace trabex::dibujo::escalera {

inline constexpr double Ojo = 0.3;        ///< m that are drawn between the flights, and below them
inline constexpr double LetraTitulo = 9;  ///< points

/// Plan: the landing and the two flights, above the origin.
void DibujePlanta(const Plano& plano, const escaleras::DatosEscaleraT& escalera);

enum class Tramos { Superior, Ambos };

/// Section: flights with their steps, and the landing. The head of the upper flight stands at the left,
/// `arriba` m below the origin.
void DibujeSeccion(const Plano& plano, const escaleras::DatosEscaleraT& escalera,
                   const escaleras::Peldanos& peldanos, double arriba, Tramos tramos);

/// The heading, centred, its foot on a row of the canvas.
void DibujeTitulo(const Plano& plano, std::string_view titulo, std::int32_t sobreFila);

}  // namespace trabex::dibujo::escalera
