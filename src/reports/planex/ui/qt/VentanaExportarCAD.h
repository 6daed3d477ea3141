#pragma once

#include <QDialog>

#include "drawing/Visor.h"
#include "reports/planex/ui/ExportarCAD.h"
#include "shell/qt/ComunVentanas.h"

class QLabel;
class QRadioButton;
class QTableWidget;

namespace trabex::dibujo::qt {
class WidgetLienzo;
}

namespace trabex::planex::ui::qt {

/// Chooses slabs of the connected project and hands them to Planex.
class VentanaExportarCAD : public QDialog, public PantallaExportarCAD {
  public:
    VentanaExportarCAD(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                       std::uint8_t versionCAD, QWidget* padre);

    bool Marcada(int fila) const override;
    ArchivoCAD Opcion() const override;
    void PunteroDeEspera(bool espera) override;
    void Cerrar() override;

  private:
    void Armar();
    QWidget* CrearLista(QWidget* padre);
    QWidget* CrearVista(QWidget* padre);
    QLayout* CrearOpciones();
    void LlenarLista();
    void MarcarTodas(bool marcadas);
    void CambiarMarca(int fila);
    void MostrarLosa(int fila);

    programa::Aplicacion& aplicacion_;
    ExportarCAD operaciones_;
    QTableWidget* lista_;
    QLabel* titulo_;
    losas::Losa losa_;  // the one under the cursor, sketched
    dibujo::EstadoVista vistaCroquis_;
    dibujo::qt::WidgetLienzo* croquis_;
    QRadioButton* anexar_;
    programa::qt::PunteroDeTrabajo puntero_;
};

/// The whole command, for the workspace of slabs: asks for the edition of Planex and, with an answer, shows
/// the window until it closes.
void MostrarExportarCAD(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                        QWidget* padre);

}  // namespace trabex::planex::ui::qt
