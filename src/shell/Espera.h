#pragma once

#include "base/AlSalir.h"

namespace trabex::programa {

/// The pointer of long work on a window, for as long as what it returns stands.
template <class Pantalla>
auto Espera(Pantalla& pantalla) {
    pantalla.PunteroDeEspera(true);
    return AlSalir([&pantalla] { pantalla.PunteroDeEspera(false); });
}

}  // namespace trabex::programa
