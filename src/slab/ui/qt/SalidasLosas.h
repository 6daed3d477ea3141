#pragma once

#include "reports/ui/qt/SalidaDelPrograma.h"
#include "slab/ui/qt/VentanaLosas.h"

namespace trabex::losas::ui::qt {

/// The commands of the slab workspace that send things out: reports, drawings, pictures, the exchange with
/// Planex.
class SalidasLosas {
  public:
    SalidasLosas(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                 reportes::ui::qt::SalidaDelPrograma& salida);

    /// By the key of each command.
    OperacionesDeLosas Operaciones();

  private:
    void ExportarResultados(Losas& losas, QWidget& ventana);
    void ExportarGraficos(Losas& losas, QWidget& ventana);
    void ImprimirGraficos(Losas& losas, QWidget& ventana);
    void ExportarImagen(Losas& losas, QWidget& ventana);
    void CambiarImpresora(Losas& losas, QWidget& ventana);
    void ExportarCAD(Losas& losas, QWidget& ventana);

    programa::Aplicacion& aplicacion_;
    reportes::ui::qt::SalidaDelPrograma& salida_;
    reportes::ui::EntornoSalida entorno_;
};

}  // namespace trabex::losas::ui::qt
