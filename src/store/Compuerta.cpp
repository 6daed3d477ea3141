#include "store/Compuerta.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstring>
#include <fstream>
#include <string>

#include "base/Archivos.h"
#include "store/Dialecto.h"

namespace trabex::almacen {

namespace {

constexpr int ObjetosMaximos = 500;  // tables and indexes
constexpr std::chrono::milliseconds PlazoDeEntrada(1000);
constexpr std::size_t LugarDeVersion = 18;  // in the header: how the file is written
constexpr char VersionConDiario = 1;        // with a rollback journal

using Inicio = std::array<char, 20>;

/// The first bytes of a file; zeros where there are none.
Inicio LeerInicio(const std::filesystem::path& camino) {
    Inicio inicio{};
    std::error_code error;
    if (std::filesystem::is_regular_file(camino, error)) {
        std::ifstream archivo(camino, std::ios::binary);
        archivo.read(inicio.data(), inicio.size());
    }
    return inicio;
}

bool EsCabecera(const Inicio& inicio) {
    constexpr std::array<char, 16> marca{"SQLite format 3"};
    return std::memcmp(inicio.data(), marca.data(), marca.size()) == 0;
}

/// The engine takes any log that stands beside a file, also one that another file left there. A file that is
/// not written with a log has none.
bool TieneDiarioAjeno(const std::filesystem::path& camino, const Inicio& inicio) {
    if (inicio[LugarDeVersion] != VersionConDiario) return false;
    std::error_code error;
    const std::uintmax_t largo = std::filesystem::file_size(std::filesystem::path(camino) += "-wal", error);
    return !error && largo > 0;
}

std::string Columna(sqlite3_stmt* fila, int i) {
    const unsigned char* texto = sqlite3_column_text(fila, i);
    return texto == nullptr ? std::string() : std::string(reinterpret_cast<const char*>(texto));
}

/// A question on an object of the database finds nothing.
bool NoHay(Motor& motor, std::string_view pregunta, const std::string& objeto) {
    const SentenciaSqlite sentencia = motor.Preparar(pregunta);
    if (!sentencia) return false;
    sqlite3_bind_text(sentencia.get(), 1, objeto.data(), static_cast<int>(objeto.size()), SQLITE_STATIC);
    bool hayFila = true;
    return motor.Avanzar(sentencia.get(), hayFila) && !hayFila;
}

/// A table of elements, or of their rows, that no engineer entered.
bool TieneDemasiados(Motor& motor, const std::string& tabla) {
    if (NoHay(motor, "SELECT 1 FROM pragma_table_xinfo(?) WHERE name = 'Nombre'", tabla)) return false;
    const std::string filas = motor.Consultar("SELECT count(*) FROM " + Identificador(tabla));
    return filas.empty() || std::stoull(filas) > FilasMaximas;
}

bool EsSimple(Motor& motor, const std::string& tipo, const std::string& nombre, const std::string& sql) {
    // An index on an expression runs it.
    if (tipo == "index") return NoHay(motor, "SELECT 1 FROM pragma_index_info(?) WHERE cid < -1", nombre);
    // No column is generated or hidden, and none takes the name of the row's identity.
    constexpr const char* rara =
        "SELECT 1 FROM pragma_table_xinfo(?) WHERE hidden <> 0 OR lower(name) = 'rowid'";
    return tipo == "table" && EsTablaSimple(sql) && NoHay(motor, rara, nombre) &&
           !TieneDemasiados(motor, nombre);
}

/// Another program keeps the file, or the machine fails: nothing is known of what is in it.
bool NoSePuedeMirar(int codigo) {
    constexpr std::array<int, 7> codigos{SQLITE_BUSY,     SQLITE_LOCKED, SQLITE_CANTOPEN, SQLITE_PERM,
                                         SQLITE_PROTOCOL, SQLITE_NOMEM,  SQLITE_IOERR};
    return std::find(codigos.begin(), codigos.end(), codigo & 0xFF) != codigos.end();
}

/// Looks at all of an opened file under one lock and one deadline.
void Revisar(Entrada& entrada) {
    Motor& motor = *entrada.Base;
    motor.FijarPlazo(PlazoDeEntrada);
    const bool legible =
        motor.Correr("BEGIN") && !motor.Consultar("SELECT count(*) FROM sqlite_master").empty();
    const int codigo = sqlite3_extended_errcode(motor.base());
    const bool sana =
        legible && SonTablasSimples(motor) && motor.Consultar("PRAGMA integrity_check(1)") == "ok";
    const bool leida = motor.Correr("COMMIT");
    motor.SoltarPlazo();
    entrada.Causa = legible ? CodigoError::FormatoNoValido : ErrorDelMotor(codigo);
    entrada.Bloqueada = !legible && NoSePuedeMirar(codigo);
    if (!sana || !leida) entrada.Base.reset();
}

}  // namespace

bool EsTablaSimple(std::string_view sql) {
    std::string inicio(sql.substr(0, std::min<std::size_t>(sql.size(), 12)));
    std::transform(inicio.begin(), inicio.end(), inicio.begin(),
                   [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return inicio == "CREATE TABLE";
}

bool SonTablasSimples(Motor& motor) {
    const SentenciaSqlite lectura = motor.Preparar("SELECT type, name, sql FROM sqlite_master");
    int objetos = 0;
    bool hayFila = lectura != nullptr;
    if (!hayFila) return false;
    while (motor.Avanzar(lectura.get(), hayFila) && hayFila) {
        const bool simple =
            EsSimple(motor, Columna(lectura.get(), 0), Columna(lectura.get(), 1), Columna(lectura.get(), 2));
        if (!simple || ++objetos > ObjetosMaximos) return false;
    }
    return !hayFila;
}

bool TieneCabecera(const std::filesystem::path& camino) {
    return EsCabecera(LeerInicio(camino));
}

std::vector<std::filesystem::path> ArchivosAlLado(const std::filesystem::path& camino) {
    std::vector<std::filesystem::path> archivos;
    for (const char* cola : {"-journal", "-wal", "-shm"})
        archivos.push_back(std::filesystem::path(camino) += cola);
    return archivos;
}

Entrada DejarEntrar(const std::filesystem::path& camino) {
    Entrada entrada;
    const Inicio inicio = LeerInicio(camino);
    std::error_code error;
    const std::uintmax_t largo = std::filesystem::file_size(camino, error);
    if (error) return entrada;
    entrada.Causa = CodigoError::FormatoNoValido;
    if (!EsCabecera(inicio) || largo > LargoMaximo || TieneDiarioAjeno(camino, inicio)) return entrada;
    entrada.Base = std::make_shared<Motor>(camino, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX);
    if (!entrada.Base->Abierto()) {
        entrada.Causa = entrada.Base->Causa();
        entrada.Bloqueada = true;
        entrada.Base.reset();
        return entrada;
    }
    Revisar(entrada);
    return entrada;
}

}  // namespace trabex::almacen
