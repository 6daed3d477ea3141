#pragma once

#include <string>

#include "base/Proyecto.h"
#include "slab/Losa.h"
#include "slab/ResultadosLosa.h"

namespace trabex::lote {

/// Records as JSON objects whose keys are the records' field names. Numbers are written in full precision, so
/// that they read back as the same doubles; one that is no number is null. Dates are ISO 8601. Arrays leave
/// slot 0 out.
std::string ProyectoJson(const DatosDelProyecto& datos);
std::string GeneralesJson(const DatosGenerales& generales);

/// A slab with its data and its results; `error` stands in it only when its calculation ended in one.
std::string LosaJson(const losas::Losa& losa, const losas::ResultadosLosa& resultados);

}  // namespace trabex::lote
