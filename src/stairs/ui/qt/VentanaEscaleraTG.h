#pragma once

#include <QDialog>
#include <array>

#include "shell/Aplicacion.h"
#include "stairs/ui/EscaleraTG.h"

namespace trabex::programa::qt {
class CampoNumero;
}

namespace trabex::escaleras::ui::qt {

/// Edits the design parameters of all stairs of one kind. Accepted when something was stored.
class VentanaEscaleraTG : public QDialog, private PantallaDeCampos<CampoEscaleraTG> {
  public:
    VentanaEscaleraTG(programa::Aplicacion& aplicacion, almacen::tablas::ClaseEscalera clase,
                      programa::CajaMensajes& caja, QWidget* padre);

  private:
    void Enfocar(CampoEscaleraTG campo) override;
    void Armar(const Separadores& separadores);
    void Mostrar(const EntradaEscaleraTG& valores);
    EntradaEscaleraTG Entrados() const;

    bool guardados_ = false;
    EscaleraTG operaciones_;
    std::array<programa::qt::CampoNumero*, 6> campos_{};
};

}  // namespace trabex::escaleras::ui::qt
