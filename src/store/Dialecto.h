#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace trabex::almacen {

/// A statement, or the end of one: each `?` of `forma` is a name between single quotes. Nothing is escaped:
/// of a name that holds a quote comes the empty text, which no one takes for a statement.
std::string Sentencia(std::string_view forma, std::initializer_list<std::string_view> nombres);

/// A text of the system's dialect as the engine takes it: `DELETE * FROM t` becomes `DELETE FROM t`. Texts in
/// single quotes compare by the store's order. Nothing when it holds a comment, a second statement, an open
/// quote or a zero byte: the engine would take part of a name for more than a name.
std::optional<std::string> TraducirSentencia(std::string_view sentencia);

/// An opened source: the text to run, and the table whose rows it can edit by identity (empty when none).
/// The row's identity is then the first column.
struct Fuente {
    std::string Sentencia;
    std::string Tabla;
};

/// A table's bare name or an SQL text as a source. What ends in `ORDER BY` a column stands in the store's
/// order.
std::optional<Fuente> TraducirFuente(std::string_view fuente);

/// `nombre` as an identifier of the engine.
std::string Identificador(std::string_view nombre);

/// "column=value" of a search: the value is a text, or a number written as one.
struct CriterioLeido {
    std::string Campo;
    std::string Valor;
    bool EsTexto;
};

/// Nothing when the text is no criterion, as one whose name holds a quote.
std::optional<CriterioLeido> LeerCriterio(std::string_view criterio);

}  // namespace trabex::almacen
