#pragma once

#include "reports/montaje/EstadoReportes.h"
#include "reports/ui/ExportarGrafico.h"
#include "reports/ui/qt/ImpresorasQt.h"
#include "shell/qt/VentanaMenuPrincipal.h"
#include "slab/ui/qt/VentanaLosas.h"

namespace trabex {

/// The windows of the elements that are built, with what reports, pictures and the exchange do in them; the
/// commands of the others are disabled.
class EspaciosTrabex : public EspaciosDeTrabajo {
  public:
    EspaciosTrabex(Aplicacion& aplicacion, CajaMensajes& caja, DialogosArchivo& dialogos,
                   Plataforma& plataforma);
    void Mostrar(Espacio espacio, QWidget* padre) override;

  private:
    EnchufesLosas Enchufes();
    void ExportarResultados(Losas& losas, QWidget& ventana);
    void ExportarGraficos(Losas& losas, QWidget& ventana);
    void ImprimirGraficos(Losas& losas, QWidget& ventana);
    void ExportarImagen(Losas& losas, QWidget& ventana);

    Aplicacion& aplicacion_;
    CajaMensajes& caja_;
    DialogosArchivo& dialogos_;
    Plataforma& plataforma_;
    EstadoReportes reportes_;
    EstadoSalida salida_;
    MotorReportes motor_;
    ImpresorasQt impresoras_;
    EntornoSalida entorno_;
};

}  // namespace trabex
