#pragma once

#include <filesystem>
#include <map>

#include "jet/Receptor.h"
#include "store/Conexion.h"

namespace trabex::almacen::antiguo {

/// A Jet database open as one of the store's: its tables are read whole into a file of their own, where they
/// change, and `Guardar` writes them all back, those that nobody asked for too.
///
/// Where it can't be read the connection is closed and says so by ConexionFallida.
class BaseEnJet {
  public:
    /// `programa` is the program folder, `trabajo` the file where it is held meanwhile; it goes at the end.
    /// Throws ErrorEjecucion when that can't be written.
    BaseEnJet(const std::filesystem::path& programa, const std::filesystem::path& archivo,
              std::filesystem::path trabajo);
    ~BaseEnJet();
    BaseEnJet(const BaseEnJet&) = delete;
    BaseEnJet& operator=(const BaseEnJet&) = delete;

    almacen::Conexion& Conexion() { return conexion_; }

    /// What the file has and `Guardar` will not write: how many of each.
    const std::map<jet::Falta, std::size_t>& Faltas() const { return faltas_; }

    /// Whether the file is, to the byte, what the program writes of it: nobody else has written there. Closes
    /// the connection.
    bool EsDelPrograma();

    /// Writes it whole in the place of what `destino` held, or not at all, and closes it. What it held stays
    /// under the name `original`, where one is given. Throws ErrorEjecucion when it can't: 75 where `destino`
    /// is read-only, 58 where something stands under that name.
    void Guardar(const std::filesystem::path& destino, const std::filesystem::path& original = {});

  private:
    std::filesystem::path archivo_;
    std::filesystem::path trabajo_;
    almacen::Conexion conexion_;
    std::map<jet::Falta, std::size_t> faltas_;
};

}  // namespace trabex::almacen::antiguo
