#pragma once

#include "shell/qt/VentanaEspacio.h"
#include "stairs/ui/EscaleraT.h"

namespace trabex::escaleras::ui::qt {

class VentanaEscaleraT;

/// What other parts of the program do with the workspace's stairs, by the command's key. A command without
/// its operation is disabled.
using OperacionesDeEscaleras =
    std::map<std::string_view, std::function<void(EscaleraT& escaleras, VentanaEscaleraT& ventana)>>;

/// The workspace of self-supporting stairs: their list, their commands, and the four sheets of the selected
/// one.
class VentanaEscaleraT : public programa::qt::VentanaEspacio, private PantallaEscaleraT {
  public:
    VentanaEscaleraT(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                     const OperacionesDeEscaleras& otras, QWidget* padre);

    EscaleraT& Operaciones() { return operaciones_; }

  private:
    bool MostrarEscaleraTNueva() override;
    void MostrarEscaleraTDatos(const TrabajoEscaleraT& trabajo) override;
    bool MostrarEscaleraTG() override;
    bool MostrarEscaleraTitulo() override;

    programa::Aplicacion& aplicacion_;
    programa::CajaMensajes& caja_;
    EscaleraT operaciones_;
};

}  // namespace trabex::escaleras::ui::qt
