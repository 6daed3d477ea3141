#pragma once

#include "reports/ui/qt/SalidaDelPrograma.h"
#include "stairs/ui/qt/VentanaEscaleraT.h"

namespace trabex::escaleras::ui::qt {

/// The commands of the workspace of stairs that send things out.
class SalidasEscaleraT {
  public:
    SalidasEscaleraT(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                     reportes::ui::qt::SalidaDelPrograma& salida)
        : aplicacion_(aplicacion), salida_(salida), entorno_(salida.Entorno(aplicacion, servicios)) {}

    /// By the key of each command.
    OperacionesDeEscaleras Operaciones();

  private:
    void ExportarGraficos(EscaleraT& escaleras, VentanaEscaleraT& ventana);
    void ExportarImagen(EscaleraT& escaleras, VentanaEscaleraT& ventana);

    programa::Aplicacion& aplicacion_;
    reportes::ui::qt::SalidaDelPrograma& salida_;
    reportes::ui::EntornoSalida entorno_;
};

}  // namespace trabex::escaleras::ui::qt
