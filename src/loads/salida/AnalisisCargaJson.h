#pragma once

#include <string>

#include "loads/AnalisisCarga.h"

namespace trabex::cargas::salida {

/// An analysis as a JSON object whose keys are the record's field names, totals as they are stored.
std::string AnalisisCargaJson(const AnalisisCarga& analisis);

}  // namespace trabex::cargas::salida
