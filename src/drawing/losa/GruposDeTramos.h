#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "slab/Losa.h"

namespace trabex::dibujo::losa {

/// Spans of a slab that lie side by side, first and last, which count from 1. None when the last comes first.
struct GrupoDeTramos {
    std::size_t Primero = 1;
    std::size_t Ultimo = 0;

    friend bool operator==(const GrupoDeTramos&, const GrupoDeTramos&) = default;
};

/// A slab's spans in groups whose values can be read on one sheet: some ten of them, or fewer where short
/// ones lie among long ones. Neighbouring groups share the axis between them. One group when all find room;
/// none of a slab without spans.
std::vector<GrupoDeTramos> GruposDeTramos(const losas::Losa& losa);

/// On how many sheets a drawing of the slab goes: one at least.
std::size_t HojasDe(const losas::Losa& losa);
/// What tells one of several sheets from the others: "HOJA 2 DE 4"; nothing where there is but one.
std::string NumeroDeHoja(std::size_t hoja, std::size_t hojas);

}  // namespace trabex::dibujo::losa
