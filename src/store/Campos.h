#pragma once

#include <cstdint>
#include <string>
#include <tuple>
#include <type_traits>

#include "store/Recordset.h"

// A record is told once, as a tuple of its fields; reading, writing and JSON walk it.

namespace trabex::almacen {

/// A field of a record: the name of its column, which is also its key in JSON, and its member.
template <class Registro, class Tipo>
struct Campo {
    const char* Nombre;
    Tipo Registro::*Dato;
    bool SeLee = true;  ///< false when it is written and never read back
};
template <class Registro, class Tipo>
Campo(const char*, Tipo Registro::*) -> Campo<Registro, Tipo>;
template <class Registro, class Tipo>
Campo(const char*, Tipo Registro::*, bool) -> Campo<Registro, Tipo>;

/// The field of the current record as a plain value: null and other types read as empty, false or 0.
template <class Tipo>
Tipo LeerComo(const Recordset& registros, const char* columna) {
    if constexpr (std::is_same_v<Tipo, bool>)
        return registros.Booleano(columna);
    else if constexpr (std::is_same_v<Tipo, std::int16_t>)
        return registros.Entero16(columna);
    else if constexpr (std::is_same_v<Tipo, std::int32_t>)
        return registros.Entero32(columna);
    else if constexpr (std::is_same_v<Tipo, double>)
        return registros.Doble(columna);
    else if constexpr (std::is_same_v<Tipo, Fecha>)
        return registros.LeerFecha(columna);
    else
        return registros.Texto(columna);
}

/// The current record into `registro`.
template <class Registro, class Campos>
void LeerCampos(const Recordset& registros, Registro& registro, const Campos& campos) {
    const auto leer = [&]<class R, class Tipo>(const Campo<R, Tipo>& campo) {
        if (campo.SeLee) registro.*(campo.Dato) = LeerComo<Tipo>(registros, campo.Nombre);
    };
    std::apply([&](const auto&... campo) { (leer(campo), ...); }, campos);
}

/// Sets the fields of `registro` in a recordset's record, or in the row that an insertion is to add.
template <class Destino, class Registro, class Campos>
void PonerCampos(Destino& destino, const Registro& registro, const Campos& campos) {
    std::apply([&](const auto&... campo) { (destino.Poner(campo.Nombre, registro.*(campo.Dato)), ...); },
               campos);
}

}  // namespace trabex::almacen
