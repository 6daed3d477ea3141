#include "base/Aviso.h"

#include <array>
#include <cstddef>

namespace trabex {

const char* NombreDe(Gravedad gravedad) {
    constexpr std::array<const char*, 3> nombres{"nota", "advertencia", "falla"};
    return nombres[static_cast<std::size_t>(gravedad)];
}

std::string EnUnaLinea(const Aviso& aviso) {
    return aviso.Lugar.empty() ? aviso.Texto : aviso.Lugar + ": " + aviso.Texto;
}

}  // namespace trabex
