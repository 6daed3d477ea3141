#pragma once

#include <string>

namespace trabex::montaje {

/// The panel that holds a window while a long report is made.
class PanelProgreso {
  public:
    virtual ~PanelProgreso() = default;
    virtual void Mostrar() = 0;
    /// `porcentaje` of the work is done; `rotulo` tells what is in hand.
    virtual void Avanzar(double porcentaje, const std::string& rotulo) = 0;
    virtual void Ocultar() = 0;
};

/// Shows the panel for as long as it lives, whichever way it is left.
class PanelALaVista {
  public:
    explicit PanelALaVista(PanelProgreso& panel) : panel_(panel) { panel_.Mostrar(); }
    ~PanelALaVista() { panel_.Ocultar(); }
    PanelALaVista(const PanelALaVista&) = delete;
    PanelALaVista& operator=(const PanelALaVista&) = delete;

  private:
    PanelProgreso& panel_;
};

}  // namespace trabex::montaje
