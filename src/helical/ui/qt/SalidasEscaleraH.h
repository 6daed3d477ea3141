#pragma once

#include "helical/ui/qt/VentanaEscaleraH.h"
#include "reports/ui/qt/SalidaDelPrograma.h"

namespace trabex::helices::ui::qt {

/// The commands of the workspace of helical stairs that send things out. Nothing is sent of a stair whose
/// calculation failed: what is on the screen may be another's.
class SalidasEscaleraH {
  public:
    SalidasEscaleraH(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                     reportes::ui::qt::SalidaDelPrograma& salida)
        : aplicacion_(aplicacion), salida_(salida), entorno_(salida.Entorno(aplicacion, servicios)) {}

    /// By the key of each command.
    OperacionesDeHelices Operaciones();

  private:
    void ExportarGrafico(EscaleraH& escaleras, VentanaEscaleraH& ventana);
    void ExportarTablas(EscaleraH& escaleras, VentanaEscaleraH& ventana);
    void ImprimirPaneles(EscaleraH& escaleras, VentanaEscaleraH& ventana);
    void ImprimirGrafico(EscaleraH& escaleras, VentanaEscaleraH& ventana);
    void ExportarImagen(EscaleraH& escaleras, VentanaEscaleraH& ventana);

    programa::Aplicacion& aplicacion_;
    reportes::ui::qt::SalidaDelPrograma& salida_;
    reportes::ui::EntornoSalida entorno_;
};

}  // namespace trabex::helices::ui::qt
