#pragma once

#include <string>

#include "base/Formatos.h"
#include "slab/Losa.h"

namespace trabex::dibujo::losa {

/// "LOSA NERVADA: " or "LOSA MACIZA: ".
std::string RotuloDeLosa(const losas::Losa& losa);

/// What the load band shows: the sum of both loads, or the two apart.
enum OpcionDeCarga : unsigned char { CargaTotal = 0, CargaPorCasos = 1, CargaSinUso = 2 };

/// Load of a span as the band shows it: "390" or "300 + 90".
std::string TextoDeCarga(const losas::Tramo& tramo, OpcionDeCarga opcion);

/// Shift of a displaced joint: along X, along Y, or both.
std::string TextoDeCorrimiento(const losas::JuntaD& junta, const Separadores& separadores);

}  // namespace trabex::dibujo::losa
