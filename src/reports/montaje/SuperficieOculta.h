#pragma once

#include <cstdint>
#include <functional>

#include "drawing/Lienzo.h"
#include "drawing/Superficie.h"
#include "store/Valor.h"

namespace trabex::montaje {

/// Size of a drawing's hidden surface, twips.
struct TamanoGrafico {
    std::int32_t Ancho = dibujo::AnchoGraficoTwips;
    std::int32_t Alto = dibujo::AltoGraficoTwips;
};

/// A picture as the scratch database keeps it: a Windows bitmap file, which any program opens, and beside it
/// the same pixels as a PNG, and the strokes it was drawn with: writers of reports take those as they stand.
struct ImagenMontada {
    almacen::Bytes MapaDeBits;
    almacen::Bytes Png;
    almacen::Bytes Trazos{};
};

/// A drawing surface off the screen, with the picture that was last drawn on it.
class SuperficieOculta {
  public:
    virtual ~SuperficieOculta() = default;
    /// Draws anew on a surface of a size in twips.
    virtual void Dibujar(std::int32_t ancho, std::int32_t alto,
                         const std::function<void(dibujo::Lienzo&)>& dibujar) = 0;
    virtual ImagenMontada Imagen() const = 0;
    /// The picture as a JPEG file's bytes, of quality 100.
    virtual almacen::Bytes Foto() const = 0;
};

}  // namespace trabex::montaje
