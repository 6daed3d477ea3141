#pragma once

#include <QDialog>
#include <memory>

#include "reports/ui/SalidaReporte.h"
#include "shell/qt/ComunVentanas.h"

class QButtonGroup;

namespace trabex::reportes::ui::qt {

/// The dialog of report output, on the operations of the tabular or of the drawing reports.
class VentanaSalidaReporte : public QDialog, public PantallaSalidaReporte {
  public:
    enum class Clase { Tabular, Grafico };
    VentanaSalidaReporte(EntornoSalida& entorno, Clase clase, QWidget* padre);

  private:
    void Armar();
    void PunteroDeEspera(bool espera) override { puntero_.Poner(espera); }
    void Ver(const documento::Documento& documento) override;
    void Cerrar() override { accept(); }

    EntornoSalida& entorno_;
    std::unique_ptr<SalidaReporte> operaciones_;
    QButtonGroup* opciones_ = nullptr;
    programa::qt::PunteroDeTrabajo puntero_;
};

}  // namespace trabex::reportes::ui::qt
