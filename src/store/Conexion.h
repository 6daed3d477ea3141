#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

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

    /// Runs one statement of the system's dialect: `DELETE * FROM t …` is understood, texts stand in single
    /// quotes, comments and further statements are refused. False when it failed; the tables then stand as
    /// they stood.
    bool Ejecutar(std::string_view sentencia);

    void Cerrar();

    /// The engine's side, for the store's own use; null when closed.
    const std::shared_ptr<Motor>& motor() const { return motor_; }

  private:
    friend void AbrirConexion(Conexion& conexion, const std::filesystem::path& camino);
    friend void CopiarEnMemoria(Conexion& origen, Conexion& copia);
    std::shared_ptr<Motor> motor_;
    bool fallida_ = false;
};

/// Makes `conexion` a new connection to the database at `camino`; an earlier one is dropped. The file must
/// exist and be a sound database: otherwise ConexionFallida is set and the file is left as it is.
void AbrirConexion(Conexion& conexion, const std::filesystem::path& camino);

/// Makes `copia` a connection to a private copy in memory of what `origen` holds, with its names indexed: for
/// whole projects to be read. What is written to it reaches no file. When `origen` is not open, or can't be
/// read, ConexionFallida is set.
void CopiarEnMemoria(Conexion& origen, Conexion& copia);

/// As AbrirConexion, on such a copy.
void AbrirCopiaEnMemoria(Conexion& conexion, const std::filesystem::path& camino);

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

  private:
    std::shared_ptr<Motor> motor_;  // null once confirmed
};

}  // namespace trabex::almacen
