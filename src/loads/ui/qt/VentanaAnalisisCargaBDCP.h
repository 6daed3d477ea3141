#pragma once

#include <QDialog>

#include "loads/ui/AnalisisCargaBDCP.h"
#include "reports/ui/SalidaReporte.h"

namespace trabex::programa::qt {
class TablaDatos;
}

namespace trabex::cargas::ui::qt {

/// A list of probable unit weights: `AnalisisCargaBDCP`.
class VentanaAnalisisCargaBDCP : public QDialog, private PantallaDePesos {
  public:
    VentanaAnalisisCargaBDCP(reportes::ui::EntornoSalida& entorno, AnalisisCargaBDCP& operaciones,
                             QWidget* padre);

    void reject() override;

  private:
    void LlenarLista(const std::vector<PesoUnitario>& lineas) override;
    void MarcarFila(int fila) override;
    void MostrarNueva(AnalisisCargaNewCP& operaciones) override;
    void MostrarNormas(Normas& operaciones) override;

    void Armar();
    programa::qt::TablaDatos* Tabla();
    bool Poner(int fila, CampoDePeso campo, const std::string& texto);

    reportes::ui::EntornoSalida& entorno_;
    AnalisisCargaBDCP& operaciones_;
    std::vector<PesoUnitario> lineas_;
    programa::qt::TablaDatos* tabla_;
};

}  // namespace trabex::cargas::ui::qt
