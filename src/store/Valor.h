#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "base/Fecha.h"

namespace trabex::almacen {

using Bytes = std::vector<std::byte>;

/// The content of one field of a record; std::monostate is null. Text is UTF-8.
using Valor =
    std::variant<std::monostate, bool, std::int16_t, std::int32_t, double, std::string, Fecha, Bytes>;

/// Types of a table's columns, as the schema declares them.
enum class TipoColumna { Booleano, Entero16, Entero32, Doble, Texto, Dia, Binario };

}  // namespace trabex::almacen
