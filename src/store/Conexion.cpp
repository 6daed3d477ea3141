#include "store/Conexion.h"

#include <new>
#include <utility>

#include "store/Compuerta.h"
#include "store/DeTrabajo.h"
#include "store/Dialecto.h"
#include "store/Motor.h"

namespace trabex::almacen {

namespace {

bool CopiarBase(Motor& destino, Motor& origen) {
    sqlite3_backup* copia = sqlite3_backup_init(destino.base(), "main", origen.base(), "main");
    if (copia == nullptr) return false;
    sqlite3_backup_step(copia, -1);
    return sqlite3_backup_finish(copia) == SQLITE_OK;
}

/// For a file that is made anew if something stops its being written.
void NoEsperarAlDisco(Motor& motor) {
    motor.Consultar("PRAGMA journal_mode = MEMORY");
    motor.Consultar("PRAGMA synchronous = OFF");
}

/// Indexes every table that has names. Only ever on a copy: in a file that stays, no other program could
/// follow an index in this order. False when it takes too long.
bool IndexarNombres(Motor& motor) {
    const SentenciaSqlite tablas = motor.Preparar(
        "SELECT m.name FROM sqlite_master m, pragma_table_info(m.name) c"
        " WHERE m.type = 'table' AND c.name = 'Nombre'");
    std::vector<std::string> nombres;
    bool hayFila = true;
    while (tablas && motor.Avanzar(tablas.get(), hayFila) && hayFila)
        nombres.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(tablas.get(), 0)));
    for (const std::string& tabla : nombres) {
        const std::string sobre = Identificador(tabla);
        if (!motor.Correr("CREATE INDEX IF NOT EXISTS " + Identificador("Nombre" + tabla) + " ON " + sobre +
                          " (Nombre COLLATE " + OrdenDelAlmacen + ")"))
            return false;
    }
    return true;
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

void Conexion::Tomar(std::shared_ptr<Motor> motor, CodigoError causa) {
    motor_ = std::move(motor);
    fallida_ = motor_ == nullptr;
    causa_ = causa;
}

void Conexion::Rechazar() {
    Tomar(nullptr, CodigoError::FormatoNoValido);
}

void Conexion::AntesDeGuardar(std::vector<std::string> sentencias) {
    if (motor_) motor_->AntesDeGuardar(std::move(sentencias));
}

bool Conexion::CambioPorFuera() {
    return motor_ && motor_->CambioPorFuera();
}

CodigoError Conexion::Causa() const {
    return motor_ ? motor_->Causa() : causa_;
}

bool Conexion::SoloLectura() const {
    return motor_ && sqlite3_db_readonly(motor_->base(), "main") == 1;
}

void AbrirConexion(Conexion& conexion, const std::filesystem::path& camino) {
    conexion.Tomar(nullptr, CodigoError::MemoriaInsuficiente);
    try {
        Entrada entrada = DejarEntrar(camino);
        conexion.Tomar(std::move(entrada.Base), entrada.Causa);
    } catch (const std::bad_alloc&) {
        return;  // it stays failed
    }
}

void AbrirBasePropia(Conexion& conexion, const std::filesystem::path& camino) {
    conexion.Tomar(nullptr, CodigoError::ArchivoNoEncontrado);
    if (!TieneCabecera(camino)) return;
    constexpr int banderas = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    auto motor = std::make_shared<Motor>(camino, banderas, Procedencia::Propia);
    if (!motor->Abierto()) return;
    NoEsperarAlDisco(*motor);
    conexion.Tomar(std::move(motor), {});
}

void AbrirDeTrabajo(Conexion& conexion, const std::filesystem::path& camino) {
    AbrirConexion(conexion, camino);
    if (!conexion.Abierta()) return;
    NoEsperarAlDisco(*conexion.motor());
}

void IndexarNombres(Conexion& conexion) {
    if (conexion.Abierta()) IndexarNombres(*conexion.motor());
}

void CopiarEnMemoria(Conexion& origen, Conexion& copia) {
    constexpr int banderas =
        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_MEMORY;
    copia.Tomar(nullptr, origen.Causa());
    auto motor = std::make_shared<Motor>("", banderas);
    if (origen.Abierta() && motor->Abierto() && CopiarBase(*motor, *origen.motor()) && IndexarNombres(*motor))
        copia.Tomar(std::move(motor), {});
}

void AbrirCopiaEnMemoria(Conexion& conexion, const std::filesystem::path& camino) {
    Conexion archivo;
    AbrirConexion(archivo, camino);
    CopiarEnMemoria(archivo, conexion);
}

Lectura::Lectura(Conexion& conexion) {
    const auto& motor = conexion.motor();
    if (motor && sqlite3_get_autocommit(motor->base()) != 0 && motor->Correr("BEGIN")) motor_ = motor;
}

Lectura::~Lectura() {
    if (motor_ && !motor_->Correr("COMMIT")) motor_->Correr("ROLLBACK");
}

Transaccion::Transaccion(Conexion& conexion) : motor_(conexion.motor()) {
    if (motor_) motor_->EmpezarGuardado();
}

Transaccion::~Transaccion() {
    if (motor_) motor_->TerminarGuardado(false);
}

void Transaccion::Estropear(CodigoError causa) {
    if (motor_) motor_->Estropear(causa);
}

bool Transaccion::Confirmar() {
    if (!motor_) return false;
    const std::shared_ptr<Motor> motor = std::move(motor_);
    return motor->TerminarGuardado(true);
}

}  // namespace trabex::almacen
