#pragma once

#include <cstdint>
#include <optional>

#include "store/Valor.h"

namespace trabex::salidas {

/// What the bytes of a JPEG file say of its picture. Nothing when they are not one.
struct CabeceraJpeg {
    std::uint32_t Ancho = 0;
    std::uint32_t Alto = 0;
    std::uint32_t Componentes = 0;  ///< 1 grey, 3 colour, 4 of a press
};
std::optional<CabeceraJpeg> LeerCabeceraJpeg(const almacen::Bytes& archivo);

}  // namespace trabex::salidas
