#include "store/Conexion.h"

#include "store/DeTrabajo.h"
#include "store/Dialecto.h"
#include "store/Motor.h"

namespace trabex::almacen {

namespace {

/// Opens an existing, sound database; null otherwise. A file that can't be written opens for reading.
std::shared_ptr<Motor> AbrirSano(const std::filesystem::path& camino) {
    if (!TieneCabecera(camino)) return nullptr;
    auto motor = std::make_shared<Motor>(camino, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX);
    if (!motor->Abierto() || motor->Consultar("PRAGMA quick_check(1)") != "ok") return nullptr;
    return motor;
}

bool CopiarBase(Motor& destino, Motor& origen) {
    sqlite3_backup* copia = sqlite3_backup_init(destino.base(), "main", origen.base(), "main");
    if (copia == nullptr) return false;
    sqlite3_backup_step(copia, -1);
    return sqlite3_backup_finish(copia) == SQLITE_OK;
}

/// Indexes every table that has names. Only ever on a copy: in a file that stays, an index in this order
/// would mislead a program that compares names otherwise.
void IndexarNombres(Motor& motor) {
    const SentenciaSqlite tablas = motor.Preparar(
        "SELECT m.name FROM sqlite_master m, pragma_table_info(m.name) c"
        " WHERE m.type = 'table' AND c.name = 'Nombre'");
    std::vector<std::string> nombres;
    bool hayFila = true;
    while (tablas && motor.Avanzar(tablas.get(), hayFila) && hayFila)
        nombres.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(tablas.get(), 0)));
    for (const std::string& tabla : nombres) {
        const std::string sobre = Identificador(tabla);
        motor.Correr("CREATE INDEX IF NOT EXISTS " + Identificador("Nombre" + tabla) + " ON " + sobre +
                     " (Nombre)");
    }
}

}  // namespace

bool Conexion::Abierta() const {
    return motor_ != nullptr;
}

bool Conexion::ConexionFallida() const {
    return fallida_;
}

bool Conexion::Ejecutar(std::string_view sentencia) {
    const auto traducida = TraducirSentencia(sentencia);
    return motor_ && traducida && motor_->Correr(*traducida);
}

void Conexion::Cerrar() {
    motor_.reset();
}

void AbrirConexion(Conexion& conexion, const std::filesystem::path& camino) {
    conexion.motor_ = AbrirSano(camino);
    conexion.fallida_ = conexion.motor_ == nullptr;
}

void AbrirDeTrabajo(Conexion& conexion, const std::filesystem::path& camino) {
    AbrirConexion(conexion, camino);
    if (!conexion.Abierta()) return;
    conexion.motor()->Consultar("PRAGMA journal_mode = MEMORY");
    conexion.motor()->Consultar("PRAGMA synchronous = OFF");
    IndexarNombres(*conexion.motor());
}

void CopiarEnMemoria(Conexion& origen, Conexion& copia) {
    constexpr int banderas = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
    auto motor = std::make_shared<Motor>(":memory:", banderas);
    const bool hecha = origen.Abierta() && motor->Abierto() && CopiarBase(*motor, *origen.motor());
    copia.motor_ = hecha ? std::move(motor) : nullptr;
    copia.fallida_ = !hecha;
    if (hecha) IndexarNombres(*copia.motor_);
}

void AbrirCopiaEnMemoria(Conexion& conexion, const std::filesystem::path& camino) {
    Conexion archivo;
    AbrirConexion(archivo, camino);
    CopiarEnMemoria(archivo, conexion);
}

Transaccion::Transaccion(Conexion& conexion) : motor_(conexion.motor()) {
    if (motor_) motor_->EmpezarGuardado();
}

Transaccion::~Transaccion() {
    if (motor_) motor_->TerminarGuardado(false);
}

bool Transaccion::Confirmar() {
    if (!motor_) return false;
    const std::shared_ptr<Motor> motor = std::move(motor_);
    return motor->TerminarGuardado(true);
}

}  // namespace trabex::almacen
