#include "store/IndiceDeNombres.h"

#include "store/Dialecto.h"
#include "store/Motor.h"

namespace trabex::almacen {

namespace {

/// Its name within the temporary database, where alone there is such a table.
std::string TablaDe(const std::string& tabla) {
    return Identificador("Nombres de " + tabla);
}

}  // namespace

std::optional<std::string> IndiceDeNombres::Condicion(const std::string& tabla, const std::string& criterio) {
    if (criterio.empty() || !AlDia(tabla)) return std::nullopt;
    const std::string nombre = criterio.substr(criterio.find('=') + 1);
    return "rowid IN (SELECT Fila FROM temp." + TablaDe(tabla) + " WHERE Plegado = Plegar(" + nombre +
           ") COLLATE BINARY) AND " + criterio;
}

/// Another connection's writing does not reach the index: it is then made anew.
bool IndiceDeNombres::AlDia(const std::string& tabla) {
    const char* archivo = sqlite3_db_filename(motor_.base(), "main");
    if (archivo == nullptr || *archivo == '\0') return false;  // a copy in memory has an index of its own
    const std::string version = motor_.Consultar("PRAGMA data_version");
    const auto hallada = tablas_.find(tabla);
    if (hallada != tablas_.end() && hallada->second.Version == version) return hallada->second.Sirve;
    tablas_[tabla] = {version, Levantar(tabla)};
    if (motor_.GuardadoEnCurso()) motor_.AlDeshacer([this, tabla] { tablas_.erase(tabla); });
    return tablas_[tabla].Sirve;
}

bool IndiceDeNombres::Levantar(const std::string& tabla) {
    const std::string indice = TablaDe(tabla);
    const std::string sobre = " ON main." + Identificador(tabla) + " BEGIN ";
    const std::string agregar =
        "INSERT OR REPLACE INTO " + indice + " VALUES (Plegar(new.Nombre), new.rowid); ";
    const std::string quitar =
        "DELETE FROM " + indice + " WHERE Plegado = Plegar(old.Nombre) AND Fila = old.rowid; ";
    const auto disparador = [&](const char* al) {
        return "CREATE TEMP TRIGGER IF NOT EXISTS " + Identificador(std::string(al) + " en " + tabla) +
               " AFTER " + al + sobre;
    };
    return motor_.Correr("CREATE TEMP TABLE IF NOT EXISTS " + indice +
                         " (Plegado, Fila INTEGER, PRIMARY KEY (Plegado, Fila)) WITHOUT ROWID") &&
           motor_.Correr("DELETE FROM temp." + indice) &&
           motor_.Correr("INSERT INTO temp." + indice + " SELECT Plegar(Nombre), rowid FROM main." +
                         Identificador(tabla)) &&
           motor_.Correr(disparador("INSERT") + agregar + "END") &&
           motor_.Correr(disparador("DELETE") + quitar + "END") &&
           motor_.Correr(disparador("UPDATE") + quitar + agregar + "END");
}

}  // namespace trabex::almacen
