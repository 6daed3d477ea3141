#pragma once

#include <filesystem>

#include "store/Conexion.h"

namespace trabex::almacen::antiguo {

/// A Jet database open as one of the store's: its tables are read whole into a file of their own, where they
/// change, and `Guardar` writes them all back, those that nobody asked for too.
///
/// Where it can't be read the connection is closed and says so by ConexionFallida.
class BaseEnJet {
  public:
    /// `programa` is the program folder, `trabajo` the file where it is held meanwhile; it goes at the end.
    BaseEnJet(const std::filesystem::path& programa, const std::filesystem::path& archivo,
              std::filesystem::path trabajo);
    ~BaseEnJet();
    BaseEnJet(const BaseEnJet&) = delete;
    BaseEnJet& operator=(const BaseEnJet&) = delete;

    almacen::Conexion& Conexion() { return conexion_; }

    /// Writes it whole in the place of what `destino` held, or not at all, and closes it. Throws
    /// ErrorEjecucion when it can't: 75 where `destino` is read-only.
    void Guardar(const std::filesystem::path& destino);

  private:
    std::filesystem::path trabajo_;
    almacen::Conexion conexion_;
};

}  // namespace trabex::almacen::antiguo
