#pragma once

#include <QDialog>

#include "loads/ui/AnalisisCargaModificar.h"
#include "reports/ui/SalidaReporte.h"

class QLabel;
class QLineEdit;
class QScrollBar;

namespace trabex::programa::qt {
class CampoNumero;
class TablaDatos;
}  // namespace trabex::programa::qt

namespace trabex::cargas::ui::qt {

/// The edit window of an analysis: `AnalisisCargaModificarP` and `AnalisisCargaModificar`.
class VentanaAnalisisCargaModificar : public QDialog, private PantallaDeAnalisis {
  public:
    VentanaAnalisisCargaModificar(reportes::ui::EntornoSalida& entorno, const VarianteAnalisis& variante,
                                  AnalisisCargaModificar& operaciones, QWidget* padre);

    /// Asks about changes; the window stays when they could not be saved.
    void reject() override;

  private:
    void PonerAnalisis(const AnalisisCarga& analisis, int posicion, int cuantos) override;
    void LlenarItems(const std::vector<PesoUnitario>& items) override;
    void MarcarItem(int fila) override;
    void PonerVariable(const PesoUnitario& variable) override;
    void PonerSumas(const SumasDeCarga& sumas) override;
    void MostrarPesos(AnalisisCargaBDCP& operaciones) override;
    void MostrarNormas(Normas& operaciones) override;

    void Armar();
    QWidget* Desplazador();
    QWidget* Permanentes();
    QWidget* Variable();
    QWidget* Sumas();
    void Salvar();
    void Desplazar(int posicion);
    void TomarPesoVariable();
    bool PonerItem(int fila, CampoDePeso campo, const std::string& texto);

    reportes::ui::EntornoSalida& entorno_;
    AnalisisCargaModificar& operaciones_;
    std::vector<PesoUnitario> items_;
    int posicion_ = 1;
    std::int32_t pesoVariable_ = 0;
    QLabel* descripcion_;
    QLabel* lugar_;
    QScrollBar* deslizador_;
    programa::qt::TablaDatos* tabla_;
    QLineEdit* texto1_;
    programa::qt::CampoNumero* long1_;
    QLabel* sumaPermanente_;
    QLabel* sumaTotal_;
};

}  // namespace trabex::cargas::ui::qt
