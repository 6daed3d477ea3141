#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace trabex::lote {

/// A project as a file that the store reads: itself, or where it is of the older format a conversion among
/// the temporary files, which goes at the end.
class ProyectoLegible {
  public:
    /// `programa` is the program folder.
    ProyectoLegible(const std::filesystem::path& programa, const std::filesystem::path& proyecto);
    ~ProyectoLegible();
    ProyectoLegible(const ProyectoLegible&) = delete;
    ProyectoLegible& operator=(const ProyectoLegible&) = delete;

    const std::filesystem::path& Camino() const { return camino_; }
    /// What a conversion could not take, in a line; empty where it took all or there was none.
    const std::string& Aviso() const { return aviso_; }

  private:
    std::filesystem::path camino_;
    std::filesystem::path temporal_;
    std::string aviso_;
};

}  // namespace trabex::lote
