#include "base/Aviso.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace trabex {

const char* NombreDe(Gravedad gravedad) {
    constexpr std::array<const char*, 3> nombres{"nota", "advertencia", "falla"};
    return nombres[static_cast<std::size_t>(gravedad)];
}

bool HayFalla(const Avisos& avisos) {
    return std::any_of(avisos.begin(), avisos.end(),
                       [](const Aviso& aviso) { return aviso.Peso == Gravedad::Falla; });
}

std::string Resumen(const Avisos& avisos) {
    const auto menosGrave = [](const Aviso& a, const Aviso& b) { return a.Peso < b.Peso; };
    const auto peor = std::max_element(avisos.begin(), avisos.end(), menosGrave);
    if (peor == avisos.end()) return {};
    const std::size_t otros = avisos.size() - 1;
    if (otros == 0) return EnUnaLinea(*peor);
    return EnUnaLinea(*peor) + " (y " + std::to_string(otros) + (otros == 1 ? " aviso más)" : " avisos más)");
}

std::string EnUnaLinea(const Aviso& aviso) {
    return aviso.Lugar.empty() ? aviso.Texto : aviso.Lugar + ": " + aviso.Texto;
}

}  // namespace trabex
