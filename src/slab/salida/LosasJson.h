#pragma once

#include <string>

#include "base/Aviso.h"
#include "base/DatosGenerales.h"
#include "slab/Losa.h"
#include "slab/ResultadosLosa.h"

namespace trabex::losas::salida {

/// Records as JSON objects whose keys are the records' field names. Numbers are written in full precision, so
/// that they read back as the same doubles; one that is no number is null. Arrays leave slot 0 out.
std::string GeneralesJson(const DatosGenerales& generales);

/// A slab with its data, its results and its notices; `error` stands in it only when its calculation ended in
/// one.
std::string LosaJson(const Losa& losa, const ResultadosLosa& resultados, const Avisos& avisos);

}  // namespace trabex::losas::salida
