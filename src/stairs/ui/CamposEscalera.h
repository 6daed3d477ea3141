#pragma once

#include <string>

#include "shell/CajaMensajes.h"

namespace trabex::escaleras::ui {

/// The side of a data window that gives a field the focus.
template <class Campo>
class PantallaDeCampos {
  public:
    virtual ~PantallaDeCampos() = default;
    virtual void Enfocar(Campo campo) = 0;
};

/// What closing a stair's data window with changes asks.
programa::Mensaje PreguntaDeSalvar(const std::string& nombre);

}  // namespace trabex::escaleras::ui
