#pragma once

#include "base/Aviso.h"
#include "lote/Modulo.h"
#include "slab/ValoresLosa.h"

namespace trabex::losas::salida {

/// What the calculation memo says of the method by which slabs are calculated.
std::span<const char* const> MetodoDeLosas();

/// A slab in the calculation memo: its data and loads, and then its results, the steps of its governing
/// sections, its equilibrium and its notices.
lote::ParteDeMemoria MemoriaDeLosa(const LosaCalculada& losa, const Avisos& avisos,
                                   const Separadores& numeros);

/// A slab's rows of the flat tables over many: loads, spans, axes, reactions.
std::vector<std::pair<std::string, documento::Tabla>> TablasDeLosa(const LosaCalculada& losa);

}  // namespace trabex::losas::salida
