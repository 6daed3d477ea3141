#pragma once

#include "base/AlSalir.h"

namespace trabex::programa {

/// The pointer of long work on a window's view, for as long as what it returns stands.
template <class Vista>
auto Espera(Vista& vista) {
    vista.PunteroDeEspera(true);
    return AlSalir([&vista] { vista.PunteroDeEspera(false); });
}

}  // namespace trabex::programa
