#include "reports/salidas/CabeceraJpeg.h"

#include <cstddef>

namespace trabex::salidas {

std::optional<CabeceraJpeg> LeerCabeceraJpeg(const almacen::Bytes& archivo) {
    const auto octeto = [&](std::size_t i) {
        return i < archivo.size() ? std::to_integer<std::uint32_t>(archivo[i]) : 0U;
    };
    const auto palabra = [&](std::size_t i) { return octeto(i) << 8U | octeto(i + 1); };
    if (palabra(0) != 0xFFD8) return std::nullopt;
    // Segments: a mark, and but for the picture's own bytes a length. The frame's marks are C0 to CF, save
    // those of tables.
    for (std::size_t lugar = 2; lugar + 9 < archivo.size();) {
        if (octeto(lugar) != 0xFF) return std::nullopt;
        const std::uint32_t marca = octeto(lugar + 1);
        if (marca == 0xFF) {
            ++lugar;
            continue;
        }
        if (marca >= 0xC0 && marca <= 0xCF && marca != 0xC4 && marca != 0xC8 && marca != 0xCC) {
            const CabeceraJpeg cabecera{palabra(lugar + 7), palabra(lugar + 5), octeto(lugar + 9)};
            return cabecera.Ancho > 0 && cabecera.Alto > 0 ? std::optional(cabecera) : std::nullopt;
        }
        if (marca == 0xD9 || marca == 0xDA) return std::nullopt;
        lugar += 2 + palabra(lugar + 2);
    }
    return std::nullopt;
}

}  // namespace trabex::salidas
