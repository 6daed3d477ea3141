#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "store/Valor.h"

namespace trabex::almacen {

/// A column as its table declares it.
struct Columna {
    std::string Nombre;
    TipoColumna Tipo = TipoColumna::Texto;
    std::size_t Ancho = 0;  ///< of a text, in characters; 0 when it has no limit
};

/// Types a column from its declaration: SMALLINT, INTEGER, DOUBLE, BOOLEAN, TEXT(n), DATE, BLOB.
Columna LeerDeclaracion(std::string_view nombre, std::string_view declaracion);

/// `valor` as the column holds it. Null passes; whole numbers and doubles convert to one another, halves to
/// even. Nothing when the column refuses it: past the range or the width, not a number, of another kind.
std::optional<Valor> Admitir(const Columna& columna, const Valor& valor);

/// The date of an ISO 8601 text, as dates are stored. Nothing when the text is no date.
std::optional<Fecha> FechaDeTexto(std::string_view texto);

}  // namespace trabex::almacen
