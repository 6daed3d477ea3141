#include "slab/Losa.h"

#include <array>

namespace trabex::losas {

Restriccion RestriccionDe(std::int16_t tipo) {
    constexpr std::array<Restriccion, 6> tabla{{{},
                                                {true, true, false},   // ApoyoFijo
                                                {false, true, false},  // RodilloEnX
                                                {true, false, false},  // RodilloEnY
                                                {true, true, true},    // Empotramiento
                                                {}}};                  // SinApoyo
    return tipo >= ApoyoFijo && tipo <= SinApoyo ? tabla[static_cast<std::size_t>(tipo)] : tabla[0];
}

SeccionLosa SeccionDeCalculo(const Losa& losa) {
    return losa.OpcionMaciza ? SeccionLosa{losa.Bm, losa.Hm} : SeccionLosa{losa.Bo, losa.Ho};
}

void VaciarLosa(Losa& losa) {
    losa.Tramos.assign(1, {});
    losa.Ejes.assign(1, {});
    losa.JuntasD.assign(1, {});
}

}  // namespace trabex::losas
