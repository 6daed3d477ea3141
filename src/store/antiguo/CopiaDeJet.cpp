#include "store/antiguo/CopiaDeJet.h"

#include <array>
#include <string>

#include "store/Dialecto.h"

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

constexpr double DiezMilesimas = 10000;

void LigarDeJet(sqlite3_stmt* sentencia, int i, Tipo tipo, const jet::Valor& valor) {
    if (const auto* entero = std::get_if<std::int64_t>(&valor)) {
        if (tipo == Tipo::Moneda)
            sqlite3_bind_double(sentencia, i, static_cast<double>(*entero) / DiezMilesimas);
        else
            sqlite3_bind_int64(sentencia, i, *entero);
    } else if (const auto* doble = std::get_if<double>(&valor)) {
        sqlite3_bind_double(sentencia, i, *doble);
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
                            "Escala INTEGER)");
    anotacion_ = motor_.Preparar("INSERT INTO " + tipos + " VALUES (?, ?, ?, ?, ?, ?)");
}

void CopiaDeJet::RecibirTabla(const std::string& nombre, const std::vector<jet::Columna>& columnas) {
    insercion_.reset();
    columnas_ = columnas;
    if (!motor_.Abierto() || columnas.empty()) return;
    std::string esquema, marcas;
    for (std::size_t i = 0; i < columnas.size(); ++i) {
        esquema += (i == 0 ? "" : ", ") + Identificador(columnas[i].Nombre) + " " + Declaracion(columnas[i]);
        marcas += i == 0 ? "?" : ", ?";
        Anotar(nombre, i, columnas[i]);
    }
    entera_ = motor_.Correr("CREATE TABLE " + Identificador(nombre) + " (" + esquema + ")") && entera_;
    insercion_ = motor_.Preparar("INSERT INTO " + Identificador(nombre) + " VALUES (" + marcas + ")");
}

void CopiaDeJet::Anotar(const std::string& tabla, std::size_t orden, const jet::Columna& columna) {
    if (!anotacion_) return;
    sqlite3_reset(anotacion_.get());
    sqlite3_bind_text(anotacion_.get(), 1, tabla.data(), static_cast<int>(tabla.size()), SQLITE_STATIC);
    const std::array<int, 5> numeros{static_cast<int>(orden), static_cast<int>(columna.De), columna.Ancho,
                                     columna.Precision, columna.Escala};
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
    insercion_.reset();
    return motor_.Abierto() && motor_.TerminarGuardado(entera_) && entera_;
}

}  // namespace trabex::almacen::antiguo
