#pragma once

#include <optional>
#include <string>

#include "base/ErrorEjecucion.h"
#include "markus/CalculeMarcus.h"

namespace trabex::marcus::salida {

/// A level as a JSON object whose keys are the records' field names, with `error` where there was one.
std::string MarcusJson(const NivelMarcus& nivel, const std::optional<ErrorEjecucion>& error);

}  // namespace trabex::marcus::salida
