#include "helical/EstacionesHelice.h"

#include <algorithm>

#include "base/Enteros.h"

namespace trabex::helices {

std::size_t EstacionesHelice::NEst() const {
    if (Inter <= 0 || Rp < 0) return 0;
    return static_cast<std::size_t>(Rp / Inter) + 1;
}

EstacionesHelice EstacionesDe(const DatosEscaleraH& escalera) {
    return {Redondear16(escalera.Angulo / 2), escalera.Inter};
}

std::size_t RegistrosPorMitad(const DatosEscaleraH& escalera) {
    const std::int16_t NMax = Redondear16(escalera.Angulo / 2 / escalera.Inter + 2);
    if (NMax < 0) throw ErrorEjecucion(CodigoError::SubindiceFueraDeIntervalo);
    return std::max(static_cast<std::size_t>(NMax), EstacionesDe(escalera).NEst() + 1) + 1;
}

}  // namespace trabex::helices
