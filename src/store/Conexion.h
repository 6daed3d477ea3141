#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/ErrorEjecucion.h"

namespace trabex::almacen {

class Motor;

/// A connection to a project, shared, scratch or exchange database: one SQLite file, without side files.
///
/// Nothing here throws. A connection that could not be opened is closed and says so by `ConexionFallida`;
/// whatever is then asked of it fails in silence. Closing happens at destruction too. A connection and the
/// sets opened on it serve one thread.
class Conexion {
  public:
    bool Abierta() const;
    bool ConexionFallida() const;

    /// Why the last thing that failed did, its opening among them.
    CodigoError Causa() const;
    /// What was opened can't be written.
    bool SoloLectura() const;

    /// Runs one statement of the system's dialect: `DELETE * FROM t …` is understood, texts stand in single
    /// quotes, comments and further statements are refused. False when it failed; the tables then stand as
    /// they stood.
    bool Ejecutar(std::string_view sentencia);

    void Cerrar();

    /// Closes it as one that could not be opened: what it holds is not for this program.
    void Rechazar();
    /// Statements that the first save runs before all else, as a part of it.
    void AntesDeGuardar(std::vector<std::string> sentencias);
    /// Another program wrote to the file, or put another in its place, since this was last asked.
    bool CambioPorFuera();

    /// The engine's side, for the store's own use; null when closed.
    const std::shared_ptr<Motor>& motor() const { return motor_; }

  private:
    friend void AbrirConexion(Conexion& conexion, const std::filesystem::path& camino);
    friend void AbrirBasePropia(Conexion& conexion, const std::filesystem::path& camino);
    friend void CopiarEnMemoria(Conexion& origen, Conexion& copia);
    void Tomar(std::shared_ptr<Motor> motor, CodigoError causa);

    std::shared_ptr<Motor> motor_;
    bool fallida_ = false;
    CodigoError causa_ = CodigoError::ArchivoNoEncontrado;  // of an opening that failed
};

/// Makes `conexion` a new connection to the database at `camino`; an earlier one is dropped. The file must
/// exist and be a sound database of plain tables: otherwise ConexionFallida is set and the file is left as it
/// is.
void AbrirConexion(Conexion& conexion, const std::filesystem::path& camino);

/// The same for a database that this program has just made for itself and makes anew each time: it is not
/// looked through, nothing limits its length and nothing waits for the disk.
void AbrirBasePropia(Conexion& conexion, const std::filesystem::path& camino);

/// Makes `copia` a connection to a private copy in memory of what `origen` holds, with its names indexed: for
/// whole projects to be read. What is written to it reaches no file. When `origen` is not open, or can't be
/// read, ConexionFallida is set.
void CopiarEnMemoria(Conexion& origen, Conexion& copia);

/// As AbrirConexion, on such a copy.
void AbrirCopiaEnMemoria(Conexion& conexion, const std::filesystem::path& camino);

/// What is read while it stands is of one moment, whatever other programs write. Nests, and stands within a
/// save.
class Lectura {
  public:
    explicit Lectura(Conexion& conexion);
    ~Lectura();
    Lectura(const Lectura&) = delete;
    Lectura& operator=(const Lectura&) = delete;

  private:
    std::shared_ptr<Motor> motor_;  // null when another one or a save stands around it
};

/// One save: what runs between its making and `Confirmar` is stored together or not at all.
///
/// The destructor takes back what was not confirmed. A statement that its own text breaks does not spoil the
/// save; a refused value, a full disk, a lock or damage does, and `Confirmar` then answers false. Nests: only
/// the outermost one counts.
class Transaccion {
  public:
    explicit Transaccion(Conexion& conexion);
    ~Transaccion();
    Transaccion(const Transaccion&) = delete;
    Transaccion& operator=(const Transaccion&) = delete;

    bool Confirmar();
    /// Spoils the save; `causa` is what is told.
    void Estropear(CodigoError causa);

  private:
    std::shared_ptr<Motor> motor_;  // null once confirmed
};

}  // namespace trabex::almacen
