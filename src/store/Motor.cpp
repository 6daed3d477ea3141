#include "store/Motor.h"

#include <array>
#include <utility>

#include "base/Archivos.h"

namespace trabex::almacen {

namespace {

constexpr int EsperaMilisegundos = 500;                // for a file that another program is writing
constexpr std::chrono::milliseconds PlazoUsual(1000);  // of a statement on someone else's database
constexpr int PasosEntreMiradas = 2000;                // of the engine, between two looks at the deadline

/// What no sound project reaches. A value may be as long as a picture of another tool's tables.
constexpr std::array<std::pair<int, int>, 8> Limites{{
    {SQLITE_LIMIT_LENGTH, 128 << 20},
    {SQLITE_LIMIT_SQL_LENGTH, 1 << 16},
    {SQLITE_LIMIT_COLUMN, 500},
    {SQLITE_LIMIT_EXPR_DEPTH, 50},
    {SQLITE_LIMIT_COMPOUND_SELECT, 5},
    {SQLITE_LIMIT_FUNCTION_ARG, 8},
    {SQLITE_LIMIT_LIKE_PATTERN_LENGTH, 100},
    {SQLITE_LIMIT_TRIGGER_DEPTH, 2},
}};

constexpr std::array<std::pair<int, int>, 6> Ajustes{{
    {SQLITE_DBCONFIG_DEFENSIVE, 1},
    {SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0},
    {SQLITE_DBCONFIG_ENABLE_TRIGGER, 0},
    {SQLITE_DBCONFIG_ENABLE_VIEW, 0},
    {SQLITE_DBCONFIG_ENABLE_LOAD_EXTENSION, 0},
    {SQLITE_DBCONFIG_DQS_DML, 0},
}};

constexpr std::array<std::pair<int, CodigoError>, 14> Causas{{
    {SQLITE_FULL, CodigoError::DiscoLleno},
    {SQLITE_BUSY, CodigoError::PermisoDenegado},
    {SQLITE_LOCKED, CodigoError::PermisoDenegado},
    {SQLITE_PROTOCOL, CodigoError::PermisoDenegado},
    {SQLITE_PERM, CodigoError::PermisoDenegado},
    {SQLITE_READONLY_DBMOVED, CodigoError::ArchivoNoEncontrado},
    {SQLITE_READONLY, CodigoError::ErrorAccesoRuta},
    {SQLITE_CANTOPEN, CodigoError::ErrorAccesoRuta},
    {SQLITE_NOMEM, CodigoError::MemoriaInsuficiente},
    {SQLITE_CORRUPT, CodigoError::FormatoNoValido},
    {SQLITE_NOTADB, CodigoError::FormatoNoValido},
    {SQLITE_INTERRUPT, CodigoError::FormatoNoValido},
    {SQLITE_TOOBIG, CodigoError::FormatoNoValido},
    {SQLITE_IOERR, CodigoError::ErrorDispositivo},
}};

int CompararNombres(void* comparador, int largoA, const void* a, int largoB, const void* b) {
    const auto texto = [](const void* datos, int largo) {
        return std::string_view(static_cast<const char*>(datos), static_cast<std::size_t>(largo));
    };
    return static_cast<const Comparador*>(comparador)->Comparar(texto(a, largoA), texto(b, largoB));
}

void Plegar(sqlite3_context* contexto, int, sqlite3_value** valores) {
    const auto* texto = reinterpret_cast<const char*>(sqlite3_value_text(valores[0]));
    if (texto == nullptr) return;
    const auto* comparador = static_cast<const Comparador*>(sqlite3_user_data(contexto));
    const std::string plegado =
        comparador->Plegar({texto, static_cast<std::size_t>(sqlite3_value_bytes(valores[0]))});
    sqlite3_result_text(contexto, plegado.data(), static_cast<int>(plegado.size()), SQLITE_TRANSIENT);
}

int PlazoVencido(void* plazo) {
    return static_cast<Plazo*>(plazo)->Vencido() ? 1 : 0;
}

/// The engine's count of its memory takes a lock that all threads share, and nobody reads it.
void ApagarEstadisticas() {
    static const int hecho = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    static_cast<void>(hecho);
}

}  // namespace

CodigoError ErrorDelMotor(int codigo) {
    for (const auto& [conocido, causa] : Causas) {
        if (codigo == conocido || (codigo & 0xFF) == conocido) return causa;
    }
    return CodigoError::ErrorAccesoRuta;
}

std::string RutaDelMotor(const std::filesystem::path& camino) {
    std::error_code error;
    return TextoDeCamino(std::filesystem::absolute(camino, error));
}

Motor::Motor(const std::filesystem::path& camino, int banderas, Procedencia procedencia)
    : procedencia_(procedencia),
      marca_((banderas & SQLITE_OPEN_MEMORY) != 0 ? std::filesystem::path() : camino) {
    ApagarEstadisticas();
    const std::string ruta = (banderas & SQLITE_OPEN_MEMORY) != 0 ? ":memory:" : RutaDelMotor(camino);
    const int codigo = sqlite3_open_v2(ruta.c_str(), &base_, banderas, nullptr);
    if (codigo != SQLITE_OK) {
        causa_ = ErrorDelMotor(codigo);
        sqlite3_close_v2(base_);
        base_ = nullptr;
        return;
    }
    sqlite3_extended_result_codes(base_, 1);
    sqlite3_busy_timeout(base_, EsperaMilisegundos);
    for (const auto& [ajuste, valor] : Ajustes) sqlite3_db_config(base_, ajuste, valor, nullptr);
    sqlite3_create_collation(base_, OrdenDelAlmacen, SQLITE_UTF8, &comparador_, CompararNombres);
    sqlite3_create_function(base_, "Plegar", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS,
                            &comparador_, Plegar, nullptr, nullptr);
    if (EsAjena()) Limitar();
    for (const char* ajuste :
         {"PRAGMA synchronous=FULL", "PRAGMA temp_store=MEMORY", "PRAGMA secure_delete=ON",
          "PRAGMA cell_size_check=ON", "PRAGMA ignore_check_constraints=ON"})
        Correr(ajuste);
    version_ = Consultar("PRAGMA data_version");
}

Motor::~Motor() {
    guardadas_.clear();
    sqlite3_close_v2(base_);
}

void Motor::Limitar() {
    for (const auto& [limite, valor] : Limites) sqlite3_limit(base_, limite, valor);
    sqlite3_progress_handler(base_, PasosEntreMiradas, PlazoVencido, &plazo_);
}

void Motor::FijarPlazo(std::chrono::milliseconds tiempo) {
    plazoFijo_ = true;
    plazo_.Dar(tiempo);
}

SentenciaSqlite Motor::Preparar(std::string_view sql) {
    SentenciaSqlite nula(nullptr, sqlite3_finalize);
    if (!Abierto() || estropeado_) return nula;
    if (!plazoFijo_) plazo_.Dar(PlazoUsual);
    sqlite3_stmt* sentencia = nullptr;
    const int codigo =
        sqlite3_prepare_v2(base_, sql.data(), static_cast<int>(sql.size()), &sentencia, nullptr);
    if (codigo != SQLITE_OK) {
        if ((codigo & 0xFF) != SQLITE_ERROR) Fallo(codigo);
        return nula;
    }
    SentenciaSqlite preparada(sentencia, sqlite3_finalize);
    if (antesDeCambiar_ && niveles_ == 0 && sentencia != nullptr && sqlite3_stmt_readonly(sentencia) == 0)
        antesDeCambiar_();
    return preparada;
}

sqlite3_stmt* Motor::Guardada(const std::string& sql) {
    auto guardada = guardadas_.find(sql);
    if (guardada == guardadas_.end()) {
        SentenciaSqlite nueva = Preparar(sql);
        if (!nueva) return nullptr;
        guardada = guardadas_.emplace(sql, std::move(nueva)).first;
    }
    sqlite3_stmt* sentencia = guardada->second.get();
    return estropeado_ || sqlite3_stmt_busy(sentencia) != 0 ? nullptr : sentencia;
}

bool Motor::Avanzar(sqlite3_stmt* sentencia, bool& hayFila) {
    if (!plazoFijo_ && sqlite3_stmt_busy(sentencia) == 0) plazo_.Dar(PlazoUsual);
    const int codigo = sqlite3_step(sentencia);
    hayFila = codigo == SQLITE_ROW;
    return hayFila || codigo == SQLITE_DONE || Fallo(codigo);
}

bool Motor::Fallo(int codigo) {
    Estropear(SeMovio() ? CodigoError::ArchivoNoEncontrado : ErrorDelMotor(codigo));
    return false;
}

/// The file no longer stands under its name.
bool Motor::SeMovio() const {
    int movido = 0;
    sqlite3_file_control(base_, "main", SQLITE_FCNTL_HAS_MOVED, &movido);
    return movido != 0;
}

void Motor::Estropear(CodigoError causa) {
    if (!estropeado_) causa_ = causa;  // what follows in a spoilt save comes of its first failure
    estropeado_ = niveles_ > 0;
}

bool Motor::Correr(std::string_view sql) {
    const SentenciaSqlite sentencia = Preparar(sql);
    if (!sentencia) return false;
    bool hayFila = true;
    while (hayFila) {
        if (!Avanzar(sentencia.get(), hayFila)) return false;
    }
    return true;
}

std::string Motor::Consultar(std::string_view sql) {
    const SentenciaSqlite sentencia = Preparar(sql);
    bool hayFila = false;
    if (!sentencia || !Avanzar(sentencia.get(), hayFila) || !hayFila) return {};
    const unsigned char* texto = sqlite3_column_text(sentencia.get(), 0);
    return texto == nullptr ? std::string() : std::string(reinterpret_cast<const char*>(texto));
}

void Motor::EmpezarGuardado() {
    if (antesDeCambiar_ && niveles_ == 0) antesDeCambiar_();
    if (niveles_++ > 0) return;
    causa_ = CodigoError::ErrorAccesoRuta;
    // A file that another tool writes with a log beside it becomes one plain file again.
    if (Consultar("PRAGMA journal_mode") == "wal") Correr("PRAGMA journal_mode=DELETE");
    bool empezado = Correr("BEGIN IMMEDIATE");
    for (const std::string& sentencia : antes_) empezado = empezado && Correr(sentencia);
    if (!empezado) estropeado_ = true;
}

bool Motor::TerminarGuardado(bool confirmar) {
    if (!confirmar) estropeado_ = true;
    if (--niveles_ > 0) return !estropeado_;
    const bool guardado = !estropeado_ && Correr("COMMIT");
    estropeado_ = false;
    if (guardado) antes_.clear();
    if (!guardado) {
        if (sqlite3_get_autocommit(base_) == 0) Correr("ROLLBACK");
        for (auto accion = deshacer_.rbegin(); accion != deshacer_.rend(); ++accion) (*accion)();
    }
    deshacer_.clear();
    return guardado;
}

bool Motor::CambioPorFuera() {
    const std::string version = Consultar("PRAGMA data_version");
    if (version.empty()) return false;  // it is being written right now
    const bool cambio = SeMovio() || version != version_;
    version_ = version;
    return cambio;
}

void Motor::Recordar(const std::string& filas, std::optional<std::uint64_t> huella) {
    if (GuardadoEnCurso()) {
        AlDeshacer([this, filas, antes = Recordada(filas)] {
            if (antes)
                recordadas_[filas] = *antes;
            else
                recordadas_.erase(filas);
        });
    }
    if (huella)
        recordadas_[filas] = *huella;
    else
        recordadas_.erase(filas);
}

std::optional<std::uint64_t> Motor::Recordada(const std::string& filas) const {
    const auto hallada = recordadas_.find(filas);
    return hallada == recordadas_.end() ? std::nullopt : std::optional(hallada->second);
}

}  // namespace trabex::almacen
