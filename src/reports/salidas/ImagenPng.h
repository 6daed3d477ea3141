#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "reports/salidas/ImagenDePaleta.h"
#include "store/Valor.h"

namespace trabex::salidas {

/// The pixels of a picture, three bytes each (red, green, blue), row by row from the top.
struct MapaDeBits {
    std::uint32_t Ancho = 0;
    std::uint32_t Alto = 0;
    std::vector<std::uint8_t> Pixeles;
};

/// Reads a Windows bitmap file: 1, 4, 8, 24 or 32 bits a pixel without compression, of either direction, or 8
/// bits run-length encoded. Nothing when the bytes are not one.
std::optional<MapaDeBits> LeerMapaDeBits(const almacen::Bytes& archivo);

/// A picture as documents take it: the bytes of a PNG or JPEG file, and its size in pixels.
struct ImagenComprimida {
    std::uint32_t Ancho = 0;
    std::uint32_t Alto = 0;
    almacen::Bytes Archivo;
    bool EsJpeg = false;
};

/// The picture as a PNG file's bytes; empty when it is too large for one.
almacen::Bytes PngDe(const ImagenDePaleta& imagen);

/// The bytes of a Windows bitmap as a PNG, those of a PNG or a JPEG as they stand. A drawing of up to 256
/// colours takes a palette, which makes it a fraction of the bitmap. Nothing when the bytes are none of
/// these.
std::optional<ImagenComprimida> Comprimida(const almacen::Bytes& archivo);

}  // namespace trabex::salidas
