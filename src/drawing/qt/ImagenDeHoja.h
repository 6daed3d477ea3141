#pragma once

#include <QImage>
#include <cstdint>
#include <functional>

#include "drawing/Superficie.h"

namespace trabex::dibujo::qt {

/// Resolution of canvases on a screen and of pictures: 96 units an inch, so that points of fonts turn into
/// units alike on every machine.
inline constexpr int PuntosPorMetro = 3780;

/// A drawing on a hidden surface of `ancho` by `alto` units, `finura` pixels to a unit; the picture tells its
/// resolution, so that it has the drawing's size wherever it is put.
QImage DibujarImagen(std::int32_t ancho, std::int32_t alto, double finura,
                     const std::function<void(Lienzo&)>& dibujar);

}  // namespace trabex::dibujo::qt
