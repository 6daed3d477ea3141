#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "store/Valor.h"

namespace trabex::salidas {

/// A picture of at most 256 colours (0xRRGGBB): a byte a pixel, rows from the top.
struct ImagenDePaleta {
    std::size_t Ancho = 0;
    std::size_t Alto = 0;
    std::vector<std::uint32_t> Paleta;
    std::vector<std::uint8_t> Pixeles;
    std::int32_t PuntosPorMetro = 0;  ///< 0 when unknown
};

/// Reduces a picture of `ancho` by `alto` pixels (0xRRGGBB in its low bits, rows from the top) to 256
/// colours: those of its surfaces stay as they are, and the many of the soft edges of letters and lines
/// become ones that the eye can't tell from them.
ImagenDePaleta ReducirColores(std::span<const std::uint32_t> pixeles, std::size_t ancho, std::size_t alto);

/// The picture as a Windows bitmap file of 8 bits a pixel, run-length encoded.
almacen::Bytes MapaDeBitsDe(const ImagenDePaleta& imagen);

/// A run-length encoded bitmap file of 8 bits a pixel as a plain one. Nothing when the bytes are not one, or
/// are damaged.
std::optional<almacen::Bytes> MapaSinComprimir(const almacen::Bytes& archivo);

}  // namespace trabex::salidas
