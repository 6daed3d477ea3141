#include "store/Mantenimiento.h"

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "base/Archivos.h"
#include "store/Conexion.h"
#include "store/Dialecto.h"
#include "store/Motor.h"

namespace trabex::almacen {

namespace {

constexpr std::int64_t HuecoMaximo = 1'000'000;  // row numbers tried one by one between two good ones

/// Copies one table row by row, past what can't be read.
class Salvamento {
  public:
    Salvamento(Motor& origen, Motor& destino, const std::string& tabla)
        : origen_(origen), destino_(destino), desde_("FROM " + Identificador(tabla)), tabla_(tabla) {}

    void Ejecutar() {
        std::int64_t alto = std::numeric_limits<std::int64_t>::min();
        if (Recorrer("", alto)) return;
        std::int64_t bajo = std::numeric_limits<std::int64_t>::max();
        if (!Recorrer(" ORDER BY rowid DESC", bajo) && HuboFilas(alto) && HuboFilas(bajo))
            ProbarHueco(alto, bajo);
    }

  private:
    static bool HuboFilas(std::int64_t ultima) {
        return ultima != std::numeric_limits<std::int64_t>::min() &&
               ultima != std::numeric_limits<std::int64_t>::max();
    }

    /// Copies rows in one direction until the end (true) or until damage; `ultima` is the last one copied.
    bool Recorrer(const std::string& orden, std::int64_t& ultima) {
        const SentenciaSqlite lectura = origen_.Preparar("SELECT rowid, * " + desde_ + orden);
        bool hayFila = lectura != nullptr;
        while (hayFila) {
            if (!origen_.Avanzar(lectura.get(), hayFila)) return false;
            if (!hayFila) return true;
            ultima = sqlite3_column_int64(lectura.get(), 0);
            Copiar(lectura.get());
        }
        return false;
    }

    void ProbarHueco(std::int64_t alto, std::int64_t bajo) {
        const SentenciaSqlite lectura = origen_.Preparar("SELECT rowid, * " + desde_ + " WHERE rowid = ?");
        for (std::int64_t fila = alto + 1; lectura && fila < bajo && fila - alto < HuecoMaximo; ++fila) {
            sqlite3_reset(lectura.get());
            sqlite3_bind_int64(lectura.get(), 1, fila);
            bool hayFila = false;
            if (origen_.Avanzar(lectura.get(), hayFila) && hayFila) Copiar(lectura.get());
        }
    }

    void Copiar(sqlite3_stmt* lectura) {
        const int columnas = sqlite3_column_count(lectura);
        if (!escritura_) {
            std::string nombres = "rowid";
            std::string marcas = "?";
            for (int i = 1; i < columnas; ++i) {
                nombres += ", " + Identificador(sqlite3_column_name(lectura, i));
                marcas += ", ?";
            }
            escritura_ = destino_.Preparar("INSERT OR IGNORE INTO " + Identificador(tabla_) + " (" + nombres +
                                           ") VALUES (" + marcas + ")");
            if (!escritura_) return;
        }
        for (int i = 0; i < columnas; ++i)
            sqlite3_bind_value(escritura_.get(), i + 1, sqlite3_column_value(lectura, i));
        bool hayFila = false;
        destino_.Avanzar(escritura_.get(), hayFila);
        sqlite3_reset(escritura_.get());
    }

    Motor& origen_;
    Motor& destino_;
    const std::string desde_;
    const std::string tabla_;
    SentenciaSqlite escritura_{nullptr, sqlite3_finalize};
};

struct TablaDeclarada {
    std::string Nombre;
    std::string Esquema;
};

/// The tables of a database, as far as its catalogue can be read.
std::vector<TablaDeclarada> LeerTablas(Motor& origen) {
    const SentenciaSqlite lectura = origen.Preparar(
        "SELECT name, sql FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite%'");
    const auto texto = [&](int i) {
        const unsigned char* datos = sqlite3_column_text(lectura.get(), i);
        return datos == nullptr ? std::string() : std::string(reinterpret_cast<const char*>(datos));
    };
    std::vector<TablaDeclarada> tablas;
    bool hayFila = true;
    while (lectura && origen.Avanzar(lectura.get(), hayFila) && hayFila)
        tablas.push_back({texto(0), texto(1)});
    return tablas;
}

/// A new database that saves what can be read of a damaged one. False when nothing could be.
///
/// One read lock spans it all: a table that another program has locked must not pass for a lost one.
bool Salvar(Motor& origen, const std::filesystem::path& destino) {
    if (!origen.Correr("BEGIN")) return false;
    const std::vector<TablaDeclarada> tablas = LeerTablas(origen);
    if (tablas.empty()) return false;
    Motor nuevo(destino, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    if (!nuevo.Abierto()) return false;
    nuevo.EmpezarGuardado();
    for (const TablaDeclarada& tabla : tablas) {
        if (nuevo.Correr(tabla.Esquema)) Salvamento(origen, nuevo, tabla.Nombre).Ejecutar();
    }
    return nuevo.TerminarGuardado(true);
}

/// A sound database written whole into a new file.
bool Reescribir(Motor& origen, const std::filesystem::path& destino) {
    const SentenciaSqlite sentencia = origen.Preparar("VACUUM INTO ?");
    if (!sentencia) return false;
    const std::string ruta = TextoDeCamino(destino);
    sqlite3_bind_text(sentencia.get(), 1, ruta.data(), static_cast<int>(ruta.size()), SQLITE_TRANSIENT);
    bool hayFila = false;
    return origen.Avanzar(sentencia.get(), hayFila);
}

void Quitar(const std::filesystem::path& camino) {
    std::error_code error;
    std::filesystem::remove(camino, error);
    OlvidarGuardado(camino);
}

}  // namespace

void AsentarBaseDatos(const std::filesystem::path& camino) {
    Conexion conexion;
    AbrirConexion(conexion, camino);
}

void OlvidarGuardado(const std::filesystem::path& camino) {
    std::error_code error;
    std::filesystem::remove(std::filesystem::path(camino) += "-journal", error);
}

bool CompactarBaseDatos(const std::filesystem::path& origen, const std::filesystem::path& destino) {
    if (!TieneCabecera(origen) || Existe(destino)) return false;
    Motor motor(origen, SQLITE_OPEN_READWRITE);
    if (!motor.Abierto()) return false;
    const bool sano = motor.Consultar("PRAGMA quick_check(1)") == "ok";
    const bool escrito = sano ? Reescribir(motor, destino) : Salvar(motor, destino);
    const bool hecho = escrito && !LlevarAlDisco(destino);
    if (!hecho) Quitar(destino);
    return hecho;
}

bool CrearBaseDatos(const std::filesystem::path& camino, std::string_view esquema) {
    if (Existe(camino)) return false;
    bool hecho = false;
    {
        Motor motor(camino, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
        if (!motor.Abierto()) return false;
        const std::string texto(esquema);
        motor.EmpezarGuardado();
        const bool corrido =
            sqlite3_exec(motor.base(), texto.c_str(), nullptr, nullptr, nullptr) == SQLITE_OK;
        hecho = motor.TerminarGuardado(corrido);
    }
    if (!hecho) Quitar(camino);
    return hecho;
}

}  // namespace trabex::almacen
