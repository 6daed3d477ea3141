#include "store/antiguo/Tipos.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>
#include <utility>

#include "store/Columna.h"
#include "store/Dialecto.h"
#include "store/antiguo/CopiaDeJet.h"

namespace trabex::almacen::antiguo {

namespace {

using jet::Tipo;

constexpr std::size_t MayorTexto = 255;
/// Tables in which the copy of a Jet database keeps what its own have not room for.
constexpr std::array<std::string_view, 3> DeLaCopia{CopiaDeJet::TablaDeTipos, CopiaDeJet::TablaDeTablas,
                                                    CopiaDeJet::TablaDeFaltas};
/// Of money, in its own unit.
constexpr double Unidad = 10000;

std::string Texto(sqlite3_stmt* sentencia, int i) {
    const unsigned char* datos = sqlite3_column_text(sentencia, i);
    return datos == nullptr ? std::string() : std::string(reinterpret_cast<const char*>(datos));
}

jet::Columna PorDeclaracion(const Columna& columna) {
    switch (columna.Tipo) {
        case TipoColumna::Booleano:
            return {columna.Nombre, Tipo::Logico};
        case TipoColumna::Entero16:
            return {columna.Nombre, Tipo::Entero};
        case TipoColumna::Entero32:
            return {columna.Nombre, Tipo::Largo};
        case TipoColumna::Doble:
            return {columna.Nombre, Tipo::Doble};
        case TipoColumna::Dia:
            return {columna.Nombre, Tipo::Fecha};
        case TipoColumna::Binario:
            return {columna.Nombre, Tipo::Ole};
        case TipoColumna::Texto:
            break;
    }
    if (columna.Ancho == 0 || columna.Ancho > MayorTexto) return {columna.Nombre, Tipo::Memo};
    return {columna.Nombre, Tipo::Texto, static_cast<std::uint16_t>(columna.Ancho)};
}

/// Type, width, precision and scale by a column's place, as they were in the database that this is a copy of.
std::map<int, jet::Columna> TiposAnotados(Motor& base, const std::string& tabla) {
    std::map<int, jet::Columna> tipos;
    const SentenciaSqlite lectura =
        base.Preparar("SELECT Orden, Tipo, Ancho, Precision, Escala, Automatica FROM " +
                      Identificador(CopiaDeJet::TablaDeTipos) + " WHERE Tabla = ?");
    if (!lectura) return tipos;
    sqlite3_bind_text(lectura.get(), 1, tabla.data(), static_cast<int>(tabla.size()), SQLITE_STATIC);
    const auto numero = [&](int i) { return sqlite3_column_int(lectura.get(), i); };
    bool hayFila = false;
    while (base.Avanzar(lectura.get(), hayFila) && hayFila)
        tipos[numero(0)] = {"",
                            static_cast<Tipo>(numero(1)),
                            static_cast<std::uint16_t>(numero(2)),
                            static_cast<std::uint8_t>(numero(3)),
                            static_cast<std::uint8_t>(numero(4)),
                            numero(5) != 0};
    return tipos;
}

}  // namespace

std::vector<std::string> TablasDe(Motor& base) {
    std::vector<std::string> tablas;
    const SentenciaSqlite lectura = base.Preparar(
        "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\' "
        "ORDER BY rowid");
    bool hayFila = false;
    while (lectura && base.Avanzar(lectura.get(), hayFila) && hayFila) {
        std::string nombre = Texto(lectura.get(), 0);
        if (std::find(DeLaCopia.begin(), DeLaCopia.end(), nombre) == DeLaCopia.end())
            tablas.push_back(std::move(nombre));
    }
    return tablas;
}

std::vector<jet::Columna> ColumnasDe(Motor& base, const std::string& tabla) {
    const std::map<int, jet::Columna> anotados = TiposAnotados(base, tabla);
    const SentenciaSqlite lectura = base.Preparar("PRAGMA table_info(" + Identificador(tabla) + ")");
    std::vector<jet::Columna> columnas;
    bool hayFila = false;
    while (lectura && base.Avanzar(lectura.get(), hayFila) && hayFila) {
        const std::string nombre = Texto(lectura.get(), 1);
        const auto anotado = anotados.find(static_cast<int>(columnas.size()));
        if (anotado == anotados.end()) {
            columnas.push_back(PorDeclaracion(LeerDeclaracion(nombre, Texto(lectura.get(), 2))));
        } else {
            columnas.push_back(anotado->second);
            columnas.back().Nombre = nombre;
        }
    }
    return columnas;
}

jet::Tabla TablaDe(Motor& base, const std::string& tabla) {
    jet::Tabla hecha{tabla, ColumnasDe(base, tabla)};
    const SentenciaSqlite lectura =
        base.Preparar("SELECT Propiedades, UltimoNumero FROM " + Identificador(CopiaDeJet::TablaDeTablas) +
                      " WHERE Tabla = ?");
    bool hayFila = false;
    if (!lectura) return hecha;
    sqlite3_bind_text(lectura.get(), 1, tabla.data(), static_cast<int>(tabla.size()), SQLITE_STATIC);
    if (!base.Avanzar(lectura.get(), hayFila) || !hayFila) return hecha;
    if (const void* bytes = sqlite3_column_blob(lectura.get(), 0))
        hecha.Propiedades.assign(static_cast<const char*>(bytes),
                                 static_cast<std::size_t>(sqlite3_column_bytes(lectura.get(), 0)));
    hecha.UltimoNumero = sqlite3_column_int(lectura.get(), 1);
    return hecha;
}

std::map<jet::Falta, std::size_t> FaltasDe(Motor& base) {
    std::map<jet::Falta, std::size_t> faltas;
    const SentenciaSqlite lectura = base.Preparar(
        "SELECT Falta, count(*) FROM " + Identificador(CopiaDeJet::TablaDeFaltas) + " GROUP BY Falta");
    bool hayFila = false;
    while (lectura && base.Avanzar(lectura.get(), hayFila) && hayFila)
        faltas[static_cast<jet::Falta>(sqlite3_column_int(lectura.get(), 0))] =
            static_cast<std::size_t>(sqlite3_column_int64(lectura.get(), 1));
    return faltas;
}

double UnidadesDe(std::int64_t diezMilesimas) {
    return static_cast<double>(diezMilesimas) / Unidad;
}

std::int64_t DiezMilesimasDe(double unidades) {
    return std::llround(unidades * Unidad);
}

}  // namespace trabex::almacen::antiguo
