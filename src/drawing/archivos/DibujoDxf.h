#pragma once

#include <string>
#include <string_view>

namespace trabex::dibujo::archivos {

/// Layer of all texts; figures of a drawing that names none are in `CapaSinNombre`.
inline constexpr const char* CapaDeTextos = "TEXTOS";
inline constexpr const char* CapaSinNombre = "DIBUJO";

/// A drawing, kept as its strokes, as a DXF file (R12, which every program reads): lines, closed outlines,
/// circles and texts in metres, the world's (0, 0) at the origin and y upward, each in its layer's colour; of
/// fills, arrowheads alone. An outline in its fill's colour is paint and no line. A drawing that told no
/// metres is in pixels. Letters beyond Latin 1 are written as their code points. Throws ErrorEjecucion when
/// it can't be made.
std::string DibujoDxf(std::string_view trazos);

}  // namespace trabex::dibujo::archivos
