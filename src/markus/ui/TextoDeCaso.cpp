#include "markus/ui/TextoDeCaso.h"

#include <array>

#include "markus/CalculeMarcus.h"

namespace trabex::marcus::ui {

std::string TextoDeCaso(std::int16_t caso) {
    const std::string titulo = "Caso " + std::to_string(caso) + ": ";
    if (caso < PrimerCaso || caso > UltimoCaso) return titulo + "no existe";
    constexpr std::array<const char*, 3> bordes{"apoyado", "un borde empotrado", "dos bordes empotrados"};
    const BordesDeCaso& lados = Bordes[static_cast<std::size_t>(caso - PrimerCaso)];
    return titulo + bordes[static_cast<std::size_t>(lados.EnX)] + " en X; " +
           bordes[static_cast<std::size_t>(lados.EnY)] + " en Y";
}

}  // namespace trabex::marcus::ui
