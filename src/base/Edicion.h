#pragma once

namespace trabex {

/// Edition of the program, as pages and reports show it.
inline constexpr const char* Edicion = "2024";

}  // namespace trabex
