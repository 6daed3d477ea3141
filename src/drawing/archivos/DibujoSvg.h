#pragma once

#include <string>
#include <string_view>

namespace trabex::dibujo::archivos {

/// A drawing, kept as its strokes, as an SVG file of its own size on a screen. Texts are texts, as wide as
/// they were drawn whatever the reader's fonts; figures are in groups whose class is their layer. Empty when
/// the strokes are none.
std::string DibujoSvg(std::string_view trazos, std::string_view titulo);

}  // namespace trabex::dibujo::archivos
