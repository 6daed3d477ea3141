#pragma once

#include <string>

#include "shell/ListaElementos.h"

namespace trabex::escaleras::ui {

/// Operations of the window that names a new stair of either kind.
class EscaleraTNueva {
  public:
    explicit EscaleraTNueva(programa::ListaElementos& lista) : lista_(lista) {}

    /// " Aceptar ": adds the stair at the list's end, without data. True when the window closes; an empty
    /// name, one that exists, or a project that can't be written keep it open, with the focus on the name.
    bool Aceptar(const std::string& nombre, const std::string& titulo);

  private:
    programa::ListaElementos& lista_;
};

}  // namespace trabex::escaleras::ui
