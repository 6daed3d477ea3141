#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <sqlite3.h>

#include "base/ErrorEjecucion.h"
#include "base/MarcaDeUso.h"
#include "store/Comparacion.h"
#include "store/IndiceDeNombres.h"
#include "store/Plazo.h"

namespace trabex::almacen {

/// A prepared statement of the engine, finalised at the end.
using SentenciaSqlite = std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)>;

/// Whose bytes a database holds: anybody's, or what this program has just written itself. The first is held
/// to limits and deadlines.
enum class Procedencia { Ajena, Propia };

/// The engine's side of a connection, shared by the connection and the recordsets opened on it.
///
/// It knows whether a save is under way and whether it is spoilt; a spoilt save runs nothing more, for the
/// engine may have taken it back by itself and further statements would be stored one by one.
class Motor {
  public:
    /// Opens a database file with the engine's own flags. An object that is not `Abierto` came of a failure.
    Motor(const std::filesystem::path& camino, int banderas, Procedencia procedencia = Procedencia::Ajena);
    ~Motor();
    Motor(const Motor&) = delete;
    Motor& operator=(const Motor&) = delete;

    bool Abierto() const { return base_ != nullptr; }
    bool EsAjena() const { return procedencia_ == Procedencia::Ajena; }
    sqlite3* base() const { return base_; }
    const Comparador& comparador() const { return comparador_; }

    /// A statement in the engine's own dialect, or null. A text that is wrong in itself spoils no save.
    SentenciaSqlite Preparar(std::string_view sql);
    /// The same, kept for the next who asks for it; null as well while somebody runs it. Whoever runs it
    /// resets it at the end. Only for the few texts that many elements share.
    sqlite3_stmt* Guardada(const std::string& sql);
    /// One step. False when it failed for a reason that spoils the save under way.
    bool Avanzar(sqlite3_stmt* sentencia, bool& hayFila);
    /// Prepares and runs to the end.
    bool Correr(std::string_view sql);
    /// The first column of the first row as a text; empty when there is none.
    std::string Consultar(std::string_view sql);

    /// All statements of someone else's database until `SoltarPlazo` have so much time together; otherwise
    /// each has the usual one.
    void FijarPlazo(std::chrono::milliseconds tiempo);
    void SoltarPlazo() { plazoFijo_ = false; }

    /// Called before each change, and before each save as a whole: the file is then in no transaction of this
    /// connection, so that another handle on it may be closed.
    void AntesDeCambiar(std::function<void()> accion) { antesDeCambiar_ = std::move(accion); }

    void AntesDeGuardar(std::vector<std::string> sentencias) { antes_ = std::move(sentencias); }
    void EmpezarGuardado();
    bool TerminarGuardado(bool confirmar);
    bool GuardadoEnCurso() const { return niveles_ > 0; }
    /// Spoils the save under way; `causa` is what is told.
    void Estropear(CodigoError causa);
    /// What must be undone in memory when the save under way is taken back.
    void AlDeshacer(std::function<void()> accion) { deshacer_.push_back(std::move(accion)); }

    /// Another connection wrote to the file, or another file stands in its place, since this was last asked.
    bool CambioPorFuera();

    /// Why the last thing that failed did.
    CodigoError Causa() const { return causa_; }

    /// What is known of the rows that were read or written, by what names them: what Recordset::Huella gave.
    /// No number forgets them; a save that is taken back brings the earlier one back.
    void Recordar(const std::string& filas, std::optional<std::uint64_t> huella);
    std::optional<std::uint64_t> Recordada(const std::string& filas) const;

    IndiceDeNombres& Nombres() { return nombres_; }

  private:
    bool Fallo(int codigo);
    bool SeMovio() const;
    void Limitar();

    sqlite3* base_ = nullptr;
    Procedencia procedencia_;
    MarcaDeUso marca_;
    Comparador comparador_;
    std::function<void()> antesDeCambiar_;
    Plazo plazo_;
    bool plazoFijo_ = false;
    int niveles_ = 0;
    bool estropeado_ = false;
    CodigoError causa_ = CodigoError::ErrorAccesoRuta;
    std::vector<std::function<void()>> deshacer_;
    std::vector<std::string> antes_;  // of the first save
    std::string version_;             // of the file's content, as last seen
    std::map<std::string, std::uint64_t> recordadas_;
    IndiceDeNombres nombres_{*this};
    std::map<std::string, SentenciaSqlite> guardadas_;
};

/// The run-time error that stands for what the engine answered.
CodigoError ErrorDelMotor(int codigo);

/// The path as the engine takes it, which no beginning turns into anything but a file's name.
std::string RutaDelMotor(const std::filesystem::path& camino);

}  // namespace trabex::almacen
