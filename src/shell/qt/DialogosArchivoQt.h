#pragma once

#include "shell/DialogosArchivo.h"

namespace trabex::programa::qt {

/// File dialogs of the toolkit.
class DialogosArchivoQt : public DialogosArchivo {
  public:
    std::optional<std::filesystem::path> Elegir(const PeticionArchivo& peticion) override;
};

}  // namespace trabex::programa::qt
