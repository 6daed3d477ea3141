#include "store/LecturaPorIdentidad.h"

#include <utility>

#include "store/Comparacion.h"
#include "store/Dialecto.h"

namespace trabex::almacen {

std::vector<Columna> ColumnasDe(Conexion& conexion, const std::string& tabla) {
    Recordset registros;
    AbrirRecordset(conexion, registros, "SELECT * FROM " + tabla + " WHERE 0");
    return registros.Abierto() ? registros.Columnas() : std::vector<Columna>();
}

void AbrirConIdentidad(Conexion& conexion, Recordset& registros, const std::string& tabla,
                       const std::vector<std::string>& columnas, const std::string& orden) {
    const std::string calificador = Identificador(tabla) + ".";
    std::string consulta = "SELECT " + calificador + "rowid AS " + ColumnaIdentidad;
    for (const std::string& columna : columnas) consulta += ", " + calificador + Identificador(columna);
    consulta += " FROM " + Identificador(tabla) + " ORDER BY ";
    if (!orden.empty()) consulta += calificador + Identificador(orden) + " COLLATE " + OrdenDelAlmacen + ", ";
    AbrirRecordset(conexion, registros, consulta + calificador + "rowid");
}

Bytes LeerBytes(Conexion& conexion, const std::string& tabla, std::string_view columna,
                const std::string& identidad) {
    Recordset registros;
    AbrirRecordset(conexion, registros,
                   "SELECT " + Identificador(tabla) + "." + Identificador(columna) + " FROM " +
                       Identificador(tabla) + " WHERE rowid = " + identidad);
    Valor valor = registros.Leer(columna);
    auto* bytes = std::get_if<Bytes>(&valor);
    return bytes ? std::move(*bytes) : Bytes();
}

}  // namespace trabex::almacen
