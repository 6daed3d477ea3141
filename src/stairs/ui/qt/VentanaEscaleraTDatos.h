#pragma once

#include <QDialog>
#include <array>

#include "drawing/Visor.h"
#include "shell/Aplicacion.h"
#include "stairs/ui/EscaleraTDatos.h"

class QFormLayout;
class QLabel;

namespace trabex::dibujo {
class Lienzo;
}
namespace trabex::dibujo::qt {
class WidgetLienzo;
}
namespace trabex::programa::qt {
class CampoNumero;
}

namespace trabex::escaleras::ui::qt {

/// Edits a self-supporting stair, with its plan and section beside the fields as they are typed.
class VentanaEscaleraTDatos : public QDialog, private PantallaDeCampos<CampoEscaleraT> {
  public:
    VentanaEscaleraTDatos(const TrabajoEscaleraT& trabajo, const programa::Aplicacion& aplicacion,
                          programa::CajaMensajes& caja, QWidget* padre);

    /// Asks when there are changes.
    void reject() override;

  private:
    void Enfocar(CampoEscaleraT campo) override;
    QWidget* Campos();
    QLayout* Botones();
    QWidget* Boceto();
    void Rellenar();
    DatosEscaleraT Entrados() const;
    void DibujarBoceto(dibujo::Lienzo& lienzo);

    const programa::Aplicacion& aplicacion_;
    EscaleraTDatos operaciones_;
    QLabel* nombre_ = nullptr;
    std::array<programa::qt::CampoNumero*, 8> campos_{};
    dibujo::EstadoVista vista_;
    dibujo::qt::WidgetLienzo* boceto_ = nullptr;
};

}  // namespace trabex::escaleras::ui::qt
