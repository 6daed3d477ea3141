#pragma once

#include <QDialog>

#include "loads/ui/ListaAnalisis.h"
#include "reports/ui/SalidaReporte.h"

class QLabel;

namespace trabex::programa::qt {
class TablaDatos;
}

namespace trabex::cargas::ui::qt {

/// The list of analyses: `AnalisisCargaP` of a project, and `AnalisisCarga`, which all projects share.
class VentanaListaAnalisis : public QDialog, private PantallaListaAnalisis {
  public:
    VentanaListaAnalisis(reportes::ui::EntornoSalida& entorno, ListaAnalisis& operaciones, QWidget* padre);

  private:
    void LlenarLista(const std::vector<LineaDeAnalisis>& lineas) override;
    void MarcarFila(int fila) override;
    void PonerCarga(int fila, double carga) override;
    void EnfocarLista() override;
    void PonerEstado(const std::string& texto) override;
    void MostrarNuevo(NuevoAnalisisCarga& operaciones) override;
    void MostrarModificar(AnalisisCargaModificar& operaciones) override;
    std::optional<bool> MostrarOpcion() override;
    void MostrarReporte(std::int16_t reporteActual) override;
    void MostrarCompartidos(ListaAnalisis& operaciones) override;

    void reject() override;

    void Armar();
    programa::qt::TablaDatos* Tabla();
    bool Poner(int fila, CampoDeLinea campo, const QVariant& valor);

    reportes::ui::EntornoSalida& entorno_;
    ListaAnalisis& operaciones_;
    std::vector<LineaDeAnalisis> lineas_;
    bool llenando_ = false;
    programa::qt::TablaDatos* tabla_;
    QLabel* pie_;
};

}  // namespace trabex::cargas::ui::qt
