#include "store/antiguo/CopiaDeJet.h"

#include <array>
#include <string>

#include "store/Dialecto.h"
#include "store/antiguo/Tipos.h"

namespace trabex::almacen::antiguo {

namespace {

using jet::Tipo;

std::string Declaracion(const jet::Columna& columna) {
    switch (columna.De) {
        case Tipo::Logico:
            return "BOOLEAN";
        case Tipo::Byte:
        case Tipo::Entero:
            return "SMALLINT";
        case Tipo::Largo:
            return "INTEGER";
        case Tipo::Moneda:
        case Tipo::Simple:
        case Tipo::Doble:
        case Tipo::Fecha:
            return "DOUBLE";
        case Tipo::Texto:
            return "TEXT(" + std::to_string(columna.Ancho) + ") COLLATE NOCASE";
        case Tipo::Memo:
            return "TEXT";
        default:
            return "BLOB";
    }
}

bool EsDeBytes(Tipo tipo) {
    return tipo != Tipo::Texto && tipo != Tipo::Memo;
}

/// A number as its column of doubles takes it, or its eight bytes where that would change it.
template <class Numero>
void LigarExacto(sqlite3_stmt* sentencia, int i, double doble, Numero numero, Numero vuelta) {
    if (vuelta == numero)
        sqlite3_bind_double(sentencia, i, doble);
    else
        sqlite3_bind_blob(sentencia, i, &numero, sizeof(numero), SQLITE_TRANSIENT);
}

void LigarDeJet(sqlite3_stmt* sentencia, int i, Tipo tipo, const jet::Valor& valor) {
    if (const auto* entero = std::get_if<std::int64_t>(&valor)) {
        if (tipo == Tipo::Moneda)
            LigarExacto(sentencia, i, UnidadesDe(*entero), *entero, DiezMilesimasDe(UnidadesDe(*entero)));
        else
            sqlite3_bind_int64(sentencia, i, *entero);
    } else if (const auto* doble = std::get_if<double>(&valor)) {
        LigarExacto(sentencia, i, *doble, *doble, *doble);  // what is no number is not itself
    } else if (const auto* texto = std::get_if<std::string>(&valor)) {
        if (EsDeBytes(tipo))
            sqlite3_bind_blob64(sentencia, i, texto->data(), texto->size(), SQLITE_STATIC);
        else
            sqlite3_bind_text64(sentencia, i, texto->data(), texto->size(), SQLITE_STATIC, SQLITE_UTF8);
    } else {
        sqlite3_bind_null(sentencia, i);
    }
}

}  // namespace

CopiaDeJet::CopiaDeJet(const std::filesystem::path& destino)
    : motor_(destino, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE) {
    if (!motor_.Abierto()) return;
    motor_.EmpezarGuardado();
    const std::string tipos = Identificador(TablaDeTipos);
    entera_ = motor_.Correr("CREATE TABLE " + tipos +
                            " (Tabla TEXT, Orden INTEGER, Tipo INTEGER, Ancho INTEGER, Precision INTEGER, "
                            "Escala INTEGER, Automatica INTEGER)") &&
              motor_.Correr("CREATE TABLE " + Identificador(TablaDeTablas) +
                            " (Tabla TEXT, Propiedades BLOB, UltimoNumero INTEGER)") &&
              motor_.Correr("CREATE TABLE " + Identificador(TablaDeFaltas) + " (Falta INTEGER)");
    anotacion_ = motor_.Preparar("INSERT INTO " + tipos + " VALUES (?, ?, ?, ?, ?, ?, ?)");
    anotacionDeTabla_ = motor_.Preparar("INSERT INTO " + Identificador(TablaDeTablas) + " VALUES (?, ?, ?)");
}

void CopiaDeJet::RecibirTabla(const jet::Tabla& tabla) {
    insercion_.reset();
    columnas_ = tabla.Columnas;
    if (!motor_.Abierto() || columnas_.empty()) return;
    std::string esquema, marcas;
    for (std::size_t i = 0; i < columnas_.size(); ++i) {
        esquema +=
            (i == 0 ? "" : ", ") + Identificador(columnas_[i].Nombre) + " " + Declaracion(columnas_[i]);
        marcas += i == 0 ? "?" : ", ?";
        Anotar(tabla.Nombre, i, columnas_[i]);
    }
    Anotar(tabla);
    entera_ = motor_.Correr("CREATE TABLE " + Identificador(tabla.Nombre) + " (" + esquema + ")") && entera_;
    insercion_ = motor_.Preparar("INSERT INTO " + Identificador(tabla.Nombre) + " VALUES (" + marcas + ")");
}

void CopiaDeJet::RecibirFalta(jet::Falta falta) {
    if (motor_.Abierto())
        entera_ = motor_.Correr("INSERT INTO " + Identificador(TablaDeFaltas) + " VALUES (" +
                                std::to_string(static_cast<int>(falta)) + ")") &&
                  entera_;
}

void CopiaDeJet::Anotar(const jet::Tabla& tabla) {
    if (!anotacionDeTabla_) return;
    sqlite3_reset(anotacionDeTabla_.get());
    sqlite3_bind_text(anotacionDeTabla_.get(), 1, tabla.Nombre.data(), static_cast<int>(tabla.Nombre.size()),
                      SQLITE_STATIC);
    sqlite3_bind_blob64(anotacionDeTabla_.get(), 2, tabla.Propiedades.data(), tabla.Propiedades.size(),
                        SQLITE_STATIC);
    sqlite3_bind_int(anotacionDeTabla_.get(), 3, tabla.UltimoNumero);
    bool hayFila = false;
    entera_ = motor_.Avanzar(anotacionDeTabla_.get(), hayFila) && entera_;
}

void CopiaDeJet::Anotar(const std::string& tabla, std::size_t orden, const jet::Columna& columna) {
    if (!anotacion_) return;
    sqlite3_reset(anotacion_.get());
    sqlite3_bind_text(anotacion_.get(), 1, tabla.data(), static_cast<int>(tabla.size()), SQLITE_STATIC);
    const std::array<int, 6> numeros{static_cast<int>(orden), static_cast<int>(columna.De),
                                     columna.Ancho,           columna.Precision,
                                     columna.Escala,          columna.Automatica};
    for (std::size_t i = 0; i < numeros.size(); ++i)
        sqlite3_bind_int(anotacion_.get(), static_cast<int>(i) + 2, numeros[i]);
    bool hayFila = false;
    entera_ = motor_.Avanzar(anotacion_.get(), hayFila) && entera_;
}

void CopiaDeJet::RecibirFila(const jet::Fila& fila) {
    if (!insercion_) return;
    sqlite3_reset(insercion_.get());
    for (std::size_t i = 0; i < fila.size(); ++i)
        LigarDeJet(insercion_.get(), static_cast<int>(i) + 1, columnas_[i].De, fila[i]);
    bool hayFila = false;
    entera_ = motor_.Avanzar(insercion_.get(), hayFila) && entera_;
}

bool CopiaDeJet::Terminar() {
    anotacion_.reset();
    anotacionDeTabla_.reset();
    insercion_.reset();
    return motor_.Abierto() && motor_.TerminarGuardado(entera_) && entera_;
}

}  // namespace trabex::almacen::antiguo
