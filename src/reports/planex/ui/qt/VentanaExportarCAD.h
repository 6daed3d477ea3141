#pragma once

#include <QDialog>

#include "drawing/Visor.h"
#include "reports/planex/ui/ExportarCAD.h"
#include "shell/qt/ComunVentanas.h"

class QLabel;
class QRadioButton;
class QTableWidget;

namespace trabex {

class WidgetLienzo;

/// Chooses slabs of the connected project and hands them to Planex.
class VentanaExportarCAD : public QDialog, public VistaExportarCAD {
  public:
    VentanaExportarCAD(Aplicacion& aplicacion, std::uint8_t versionCAD, CajaMensajes& caja,
                       DialogosArchivo& dialogos, Plataforma& plataforma, QWidget* padre);

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

    Aplicacion& aplicacion_;
    ExportarCAD operaciones_;
    QTableWidget* lista_;
    QLabel* titulo_;
    Losa losa_;  // the one under the cursor, sketched
    EstadoVista vistaCroquis_;
    WidgetLienzo* croquis_;
    QRadioButton* anexar_;
    PunteroDeTrabajo puntero_;
};

/// The whole command, for the workspace of slabs: asks for the edition of Planex and, with an answer, shows
/// the window until it closes.
void MostrarExportarCAD(Aplicacion& aplicacion, CajaMensajes& caja, DialogosArchivo& dialogos,
                        Plataforma& plataforma, QWidget* padre);

}  // namespace trabex
