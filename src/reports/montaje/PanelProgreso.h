#pragma once

#include <string>

#include "base/AlSalir.h"

namespace trabex::montaje {

/// The panel that holds a window while a long report is made.
class PanelProgreso {
  public:
    virtual ~PanelProgreso() = default;
    virtual void Mostrar() = 0;
    /// `porcentaje` of the work is done; `rotulo` tells what is in hand.
    virtual void Avanzar(double porcentaje, const std::string& rotulo) = 0;
    virtual void Ocultar() = 0;
    /// The engineer wants no more of it.
    virtual bool Cancelado() const { return false; }
};

/// Shows the panel for as long as what it returns stands.
inline auto PanelALaVista(PanelProgreso& panel) {
    panel.Mostrar();
    return AlSalir([&panel] { panel.Ocultar(); });
}

}  // namespace trabex::montaje
