#pragma once

#include <QTimer>

#include "helical/ui/EscaleraH.h"
#include "shell/qt/VentanaEspacio.h"

namespace trabex::reportes::ui::qt {
class VistaDeHoja;
}

namespace trabex::helices::ui::qt {

class VentanaEscaleraH;

/// What other parts of the program do with the workspace's stairs, by the command's key. A command without
/// its operation is disabled.
using OperacionesDeHelices =
    std::map<std::string_view, std::function<void(EscaleraH& escaleras, VentanaEscaleraH& ventana)>>;

/// The workspace of helical stairs: their list, their commands, and of the selected one the drawing and the
/// grids of forces and of design.
class VentanaEscaleraH : public programa::qt::VentanaEspacio, private PantallaEscaleraH {
  public:
    VentanaEscaleraH(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                     const OperacionesDeHelices& otras, QWidget* padre);

    EscaleraH& Operaciones() { return operaciones_; }

  private:
    bool MostrarEscaleraTNueva() override;
    void MostrarEscaleraHDatos(const TrabajoEscaleraH& trabajo) override;
    void MostrarEscaleraTG() override;
    bool MostrarEscaleraTitulo() override;
    void PonerPaneles(const EscaleraHCalculada& escalera) override;
    void MarcarGiro(dibujo::helice::ModoGiro modo) override;
    void ConectarGiro();

    programa::Aplicacion& aplicacion_;
    programa::CajaMensajes& caja_;
    EscaleraH operaciones_;
    QTimer reloj_;
    reportes::ui::qt::VistaDeHoja* solicitaciones_;
    reportes::ui::qt::VistaDeHoja* diseno_;
};

}  // namespace trabex::helices::ui::qt
