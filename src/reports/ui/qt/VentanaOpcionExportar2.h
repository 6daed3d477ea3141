#pragma once

#include <QDialog>

#include "reports/ui/OpcionExportar2.h"
#include "shell/qt/ComunVentanas.h"

class QButtonGroup;

namespace trabex::reportes::ui::qt {

/// Asks for the kind of file that a grid is exported to.
class VentanaOpcionExportar2 : public QDialog, private PantallaOpcionExportar2 {
  public:
    VentanaOpcionExportar2(EntornoSalida& entorno, const cuadricula::Cuadricula& grilla, QWidget* padre);

  private:
    void PunteroDeEspera(bool espera) override { puntero_.Poner(espera); }
    void Cerrar() override { accept(); }

    OpcionExportar2 operaciones_;
    QButtonGroup* opciones_;
    programa::qt::PunteroDeTrabajo puntero_;
};

}  // namespace trabex::reportes::ui::qt
