#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "drawing/Lienzo.h"
#include "drawing/Visor.h"

namespace trabex::dibujo::qt {

/// How much finer than a screen's the surface is on which a drawing is made for the files of other programs.
inline constexpr std::int32_t FinuraDeTrazos = 100;

/// The strokes of a drawing on a surface of `ancho` by `alto` pixels of a screen, with places that fine.
/// Needs the toolkit's fonts.
std::string TrazosFinos(std::int32_t ancho, std::int32_t alto, const std::function<void(Lienzo&)>& dibujar);

/// A screen's viewport on that surface.
EstadoVista EnTrazosFinos(EstadoVista vista);

}  // namespace trabex::dibujo::qt
