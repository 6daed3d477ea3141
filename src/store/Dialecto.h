#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace trabex::almacen {

/// A text of the system's dialect as the engine takes it: `DELETE * FROM t` becomes `DELETE FROM t`. Texts in
/// single quotes pass as they stand. Nothing when it holds a comment, a second statement, an open quote or a
/// zero byte: the engine would take part of a name for more than a name.
std::optional<std::string> TraducirSentencia(std::string_view sentencia);

/// An opened source: the text to run, and the table whose rows it can edit by identity (empty when none).
/// The row's identity is then the first column.
struct Fuente {
    std::string Sentencia;
    std::string Tabla;
};

/// A table's bare name or an SQL text as a source.
std::optional<Fuente> TraducirFuente(std::string_view fuente);

/// `nombre` as an identifier of the engine.
std::string Identificador(std::string_view nombre);

/// "column=value" of a search: the value is a text, or a number written as one.
struct Criterio {
    std::string Campo;
    std::string Valor;
    bool EsTexto;
};

/// Nothing when the text is no criterion, as one whose name holds a quote.
std::optional<Criterio> LeerCriterio(std::string_view criterio);

}  // namespace trabex::almacen
