#include "slab/Losa.h"

namespace trabex::losas {

SeccionLosa SeccionDeCalculo(const Losa& losa) {
    return losa.OpcionMaciza ? SeccionLosa{losa.Bm, losa.Hm} : SeccionLosa{losa.Bo, losa.Ho};
}

void VaciarLosa(Losa& losa) {
    losa.Tramos.assign(1, {});
    losa.Ejes.assign(1, {});
    losa.JuntasD.assign(1, {});
}

}  // namespace trabex::losas
