#pragma once

#include "base/LeerNumero.h"

namespace trabex::cargas::ui::qt {

/// A weight as it may be typed: with decimals too, of which a whole number of 32 bits is made.
inline constexpr ClaseNumero PesoEntrado{false, -2147483648.0, 2147483647.0, 0};

}  // namespace trabex::cargas::ui::qt
