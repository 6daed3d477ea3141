#pragma once

namespace trabex {

/// Edition of the program, as pages and reports show it.
inline constexpr const char* Edicion = "2024";

/// The program with its edition, as title bars, boxes and files name it.
inline constexpr const char* ProgramaYEdicion = "Trabex 2024";

}  // namespace trabex
