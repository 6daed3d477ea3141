#pragma once

#include <filesystem>

namespace trabex::programa {

/// The program's folders, found at start-up.
struct Carpetas {
    std::filesystem::path CaminoPrograma;    ///< of the executable
    std::filesystem::path CaminoUsuario;     ///< of the user's data
    std::filesystem::path CaminoTemporales;  ///< scratch folder of file maintenance

    std::filesystem::path Proyectos() const { return CaminoUsuario / "Proyectos"; }
    /// The load database that all projects share.
    std::filesystem::path AnalisisCarga() const { return Proyectos() / "AnalisisCarga.mdb"; }
    std::filesystem::path ReportesExportados() const { return CaminoUsuario / "ReportesExportados"; }
    std::filesystem::path Respaldos() const { return CaminoUsuario / "Respaldos"; }
    /// What is made on the way to a report.
    std::filesystem::path Trabajo() const { return CaminoUsuario / "Trabajo"; }
    std::filesystem::path Tapices() const { return CaminoUsuario / "Tapices"; }
};

}  // namespace trabex::programa
