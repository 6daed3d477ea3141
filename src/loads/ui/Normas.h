#pragma once

#include "shell/Servicios.h"

namespace trabex::cargas::ui {

/// The two documents of the norm of actions.
enum class DocumentoDeNorma { Articulado, Comentario };

/// Operations of the window that shows the norm.
class Normas {
  public:
    explicit Normas(const programa::Servicios& servicios) : servicios_(servicios) {}

    /// Opens a document with the desktop's program. One that is not installed, or that can't be opened, shows
    /// the error in the system's form.
    void Abrir(DocumentoDeNorma documento);

  private:
    programa::Servicios servicios_;
};

}  // namespace trabex::cargas::ui
