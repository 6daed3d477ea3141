#pragma once

#include <cstdint>
#include <functional>

#include "drawing/Lienzo.h"
#include "store/Valor.h"

namespace trabex::montaje {

/// Size of the hidden surfaces of reports, in twips (1/1440 inch). It, and not that of the screen's canvas,
/// sets the scale of a report's drawings.
inline constexpr std::int32_t AnchoGraficoTwips = 14100;
inline constexpr std::int32_t AltoGraficoTwips = 8700;

/// A drawing surface off the screen, with the picture that was last drawn on it.
class SuperficieOculta {
  public:
    virtual ~SuperficieOculta() = default;
    /// Draws anew on a surface of a size in twips.
    virtual void Dibujar(std::int32_t ancho, std::int32_t alto,
                         const std::function<void(dibujo::Lienzo&)>& dibujar) = 0;
    /// The picture as a Windows bitmap file's bytes.
    virtual almacen::Bytes MapaDeBits() const = 0;
    /// The picture as a JPEG file's bytes, of quality 100.
    virtual almacen::Bytes Foto() const = 0;
};

}  // namespace trabex::montaje
