#pragma once

#include <QDialog>
#include <optional>

#include "shell/Aplicacion.h"
#include "stairs/ui/EscaleraTG.h"
#include "stairs/ui/qt/CamposDeEscalera.h"

namespace trabex::escaleras::ui::qt {

/// Edits the design parameters of all stairs of one kind. Accepted when something was stored.
class VentanaEscaleraTG : public QDialog, private PantallaDeCampos<CampoEscaleraTG> {
  public:
    VentanaEscaleraTG(programa::Aplicacion& aplicacion, almacen::tablas::ClaseEscalera clase,
                      programa::CajaMensajes& caja, QWidget* padre);

  private:
    void Enfocar(CampoEscaleraTG campo) override { campos_->Enfocar(campo); }
    EntradaEscaleraTG Entrados() const;

    bool guardados_ = false;
    EscaleraTG operaciones_;
    std::optional<CamposDeEscalera> campos_;
};

}  // namespace trabex::escaleras::ui::qt
