#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <sqlite3.h>

#include "store/Comparacion.h"

namespace trabex::almacen {

/// A prepared statement of the engine, finalised at the end.
using SentenciaSqlite = std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)>;

/// The engine's side of a connection, shared by the connection and the recordsets opened on it.
///
/// It knows whether a save is under way and whether it is spoilt; a spoilt save runs nothing more, for the
/// engine may have taken it back by itself and further statements would be stored one by one.
class Motor {
  public:
    /// Opens a database file with the engine's own flags. An object that is not `Abierto` came of a failure.
    Motor(const std::filesystem::path& camino, int banderas);
    ~Motor();
    Motor(const Motor&) = delete;
    Motor& operator=(const Motor&) = delete;

    bool Abierto() const { return base_ != nullptr; }
    sqlite3* base() const { return base_; }
    const Comparador& comparador() const { return comparador_; }

    /// A statement in the engine's own dialect, or null. A text that is wrong in itself spoils no save.
    SentenciaSqlite Preparar(std::string_view sql);
    /// One step. False when it failed for a reason that spoils the save under way.
    bool Avanzar(sqlite3_stmt* sentencia, bool& hayFila);
    /// Prepares and runs to the end.
    bool Correr(std::string_view sql);
    /// The first column of the first row as a text; empty when there is none.
    std::string Consultar(std::string_view sql);

    /// Called before each change, and before each save as a whole: the file is then in no transaction of this
    /// connection, so that another handle on it may be closed.
    void AntesDeCambiar(std::function<void()> accion) { antesDeCambiar_ = std::move(accion); }
    void EmpezarGuardado();
    bool TerminarGuardado(bool confirmar);
    bool GuardadoEnCurso() const { return niveles_ > 0; }
    int NumeroDeGuardado() const { return numeroGuardado_; }
    void Estropear() { estropeado_ = niveles_ > 0; }
    /// What must be undone in memory when the save under way is taken back.
    void AlDeshacer(std::function<void()> accion) { deshacer_.push_back(std::move(accion)); }

  private:
    bool Fallo();

    sqlite3* base_ = nullptr;
    Comparador comparador_;
    std::function<void()> antesDeCambiar_;
    int niveles_ = 0;
    int numeroGuardado_ = 0;
    bool estropeado_ = false;
    std::vector<std::function<void()>> deshacer_;
};

/// The file's bytes begin as a database of the engine does.
bool TieneCabecera(const std::filesystem::path& camino);

}  // namespace trabex::almacen
