#pragma once

#include <string>

#include "slab/ui/Losas.h"

namespace trabex::losas::ui {

/// Operations of the window that names a new slab. While the name is typed, a scroller walks the slabs that
/// exist by `ListaElementos::Seleccionar`.
class LosaNueva {
  public:
    explicit LosaNueva(Losas& losas) : losas_(losas) {}
    /// " Aceptar ": adds the slab, without spans, at the list's end, and makes it the open one. True when the
    /// window closes; an empty name, one that exists, or a project that can't be written keep it open.
    bool Aceptar(const std::string& entrado);

  private:
    Losas& losas_;
};

/// Operations of the window that names a copy of the selected slab.
class LosaSalvarComo {
  public:
    LosaSalvarComo(Losas& losas, programa::CajaMensajes& caja) : losas_(losas), caja_(caja) {}
    /// " Aceptar ": adds the copy at the list's end. True when the window closes.
    bool Aceptar(const std::string& entrado);

  private:
    Losas& losas_;
    programa::CajaMensajes& caja_;
};

}  // namespace trabex::losas::ui
