#pragma once

#include "reports/montaje/EstadoReportes.h"
#include "reports/ui/ExportarGrafico.h"
#include "reports/ui/qt/ImpresorasQt.h"
#include "shell/qt/VentanaMenuPrincipal.h"
#include "slab/ui/qt/VentanaLosas.h"

namespace trabex {

/// The windows of the elements that are built, with what reports, pictures and the exchange do in them; the
/// commands of the others are disabled.
class EspaciosTrabex : public programa::qt::EspaciosDeTrabajo {
  public:
    EspaciosTrabex(programa::Aplicacion& aplicacion, programa::CajaMensajes& caja,
                   programa::DialogosArchivo& dialogos, programa::Plataforma& plataforma);
    void Mostrar(programa::Espacio espacio, QWidget* padre) override;

  private:
    losas::ui::qt::OperacionesDeLosas Operaciones();
    void ExportarResultados(losas::ui::Losas& losas, QWidget& ventana);
    void ExportarGraficos(losas::ui::Losas& losas, QWidget& ventana);
    void ImprimirGraficos(losas::ui::Losas& losas, QWidget& ventana);
    void ExportarImagen(losas::ui::Losas& losas, QWidget& ventana);

    programa::Aplicacion& aplicacion_;
    programa::CajaMensajes& caja_;
    programa::DialogosArchivo& dialogos_;
    programa::Plataforma& plataforma_;
    losas::ui::MemoriaLosas losas_;
    montaje::EstadoReportes reportes_;
    reportes::ui::EstadoSalida salida_;
    salidas::MotorReportes motor_;
    reportes::ui::qt::ImpresorasQt impresoras_;
    reportes::ui::EntornoSalida entorno_;
};

}  // namespace trabex
