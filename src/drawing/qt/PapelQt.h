#pragma once

#include <QPagedPaintDevice>
#include <functional>
#include <vector>

#include "drawing/Lienzo.h"

namespace trabex {

/// Resolution of drawings on paper, units to an inch: the scale's cap is told in these.
inline constexpr int UnidadesPorPulgadaDePapel = 600;

/// Draws pages one after another on a printer or a PDF, whose resolution is UnidadesPorPulgadaDePapel; the
/// canvas is the page within its margins. Throws ErrorEjecucion 57 when the device refuses.
void ImprimirPaginas(QPagedPaintDevice& papel, const std::vector<std::function<void(Lienzo&)>>& paginas);

}  // namespace trabex
