#include "store/Motor.h"

#include <array>
#include <cstring>
#include <fstream>

#include "base/Archivos.h"

namespace trabex::almacen {

namespace {

constexpr int EsperaMilisegundos = 500;  // for a file that another program is writing

int CompararNombres(void* comparador, int largoA, const void* a, int largoB, const void* b) {
    const auto texto = [](const void* datos, int largo) {
        return std::string_view(static_cast<const char*>(datos), static_cast<std::size_t>(largo));
    };
    return static_cast<const Comparador*>(comparador)->Comparar(texto(a, largoA), texto(b, largoB));
}

/// The engine's count of its memory takes a lock that all threads share, and nobody reads it.
void ApagarEstadisticas() {
    static const int hecho = sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
    static_cast<void>(hecho);
}

}  // namespace

Motor::Motor(const std::filesystem::path& camino, int banderas) {
    ApagarEstadisticas();
    if (sqlite3_open_v2(TextoDeCamino(camino).c_str(), &base_, banderas, nullptr) != SQLITE_OK) {
        sqlite3_close_v2(base_);
        base_ = nullptr;
        return;
    }
    sqlite3_extended_result_codes(base_, 1);
    sqlite3_busy_timeout(base_, EsperaMilisegundos);
    sqlite3_db_config(base_, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(base_, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_create_collation(base_, "NOCASE", SQLITE_UTF8, &comparador_, CompararNombres);
    Correr("PRAGMA synchronous=FULL");
    Correr("PRAGMA temp_store=MEMORY");
}

Motor::~Motor() {
    sqlite3_close_v2(base_);
}

SentenciaSqlite Motor::Preparar(std::string_view sql) {
    SentenciaSqlite nula(nullptr, sqlite3_finalize);
    if (!Abierto() || estropeado_) return nula;
    sqlite3_stmt* sentencia = nullptr;
    const int codigo =
        sqlite3_prepare_v2(base_, sql.data(), static_cast<int>(sql.size()), &sentencia, nullptr);
    if (codigo != SQLITE_OK) {
        if ((codigo & 0xFF) != SQLITE_ERROR) Fallo();
        return nula;
    }
    SentenciaSqlite preparada(sentencia, sqlite3_finalize);
    if (antesDeCambiar_ && niveles_ == 0 && sentencia != nullptr && sqlite3_stmt_readonly(sentencia) == 0)
        antesDeCambiar_();
    return preparada;
}

bool Motor::Avanzar(sqlite3_stmt* sentencia, bool& hayFila) {
    const int codigo = sqlite3_step(sentencia);
    hayFila = codigo == SQLITE_ROW;
    return hayFila || codigo == SQLITE_DONE || Fallo();
}

bool Motor::Fallo() {
    Estropear();
    return false;
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
    ++numeroGuardado_;
    if (!Correr("BEGIN IMMEDIATE")) estropeado_ = true;
}

bool Motor::TerminarGuardado(bool confirmar) {
    if (!confirmar) Estropear();
    if (--niveles_ > 0) return !estropeado_;
    const bool guardado = !estropeado_ && Correr("COMMIT");
    estropeado_ = false;
    if (!guardado) {
        if (sqlite3_get_autocommit(base_) == 0) Correr("ROLLBACK");
        for (auto accion = deshacer_.rbegin(); accion != deshacer_.rend(); ++accion) (*accion)();
    }
    deshacer_.clear();
    return guardado;
}

bool TieneCabecera(const std::filesystem::path& camino) {
    constexpr std::array<char, 16> marca{"SQLite format 3"};
    std::error_code error;
    if (!std::filesystem::is_regular_file(camino, error)) return false;
    std::ifstream archivo(camino, std::ios::binary);
    std::array<char, marca.size()> inicio{};
    archivo.read(inicio.data(), inicio.size());
    return archivo && std::memcmp(inicio.data(), marca.data(), marca.size()) == 0;
}

}  // namespace trabex::almacen
