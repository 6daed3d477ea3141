#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace trabex::programa {

/// What a file dialog is asked for.
struct PeticionArchivo {
    std::string Titulo;
    std::string Filtro;  ///< label and pattern, "Archivos de Proyectos (.los)|*.los"
    std::filesystem::path Carpeta;
    bool Guardar = false;          ///< a save dialog, or else an open one
    bool AvisarReemplazo = false;  ///< the dialog itself warns of an existing file
    bool DebeExistir = false;
    std::string Nombre = {};  ///< file name with which it opens
};

class DialogosArchivo {
  public:
    virtual ~DialogosArchivo() = default;
    /// The chosen file; nothing when the user cancels.
    virtual std::optional<std::filesystem::path> Elegir(const PeticionArchivo& peticion) = 0;
};

}  // namespace trabex::programa
