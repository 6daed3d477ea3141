#pragma once

#include <string>
#include <type_traits>

#include <sqlite3.h>

#include "base/Formatos.h"
#include "store/Valor.h"

namespace trabex::almacen {

/// Binds a value to place `i` of a statement, which must be run while `valor` lives.
inline void Ligar(sqlite3_stmt* sentencia, int i, const Valor& valor) {
    const auto ligarTexto = [&](const std::string& texto, sqlite3_destructor_type dueno) {
        sqlite3_bind_text(sentencia, i, texto.data(), static_cast<int>(texto.size()), dueno);
    };
    std::visit(
        [&](const auto& v) {
            using T = std::decay_t<decltype(v)>;
            if constexpr (std::is_same_v<T, std::monostate>)
                sqlite3_bind_null(sentencia, i);
            else if constexpr (std::is_same_v<T, double>)
                sqlite3_bind_double(sentencia, i, v);
            else if constexpr (std::is_same_v<T, std::string>)
                ligarTexto(v, SQLITE_STATIC);
            else if constexpr (std::is_same_v<T, Fecha>)
                ligarTexto(FechaIso(v), SQLITE_TRANSIENT);
            else if constexpr (std::is_same_v<T, Bytes>)
                sqlite3_bind_blob(sentencia, i, v.data(), static_cast<int>(v.size()), SQLITE_STATIC);
            else
                sqlite3_bind_int64(sentencia, i, v);
        },
        valor);
}

}  // namespace trabex::almacen
