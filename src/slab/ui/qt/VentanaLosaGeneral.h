#pragma once

#include <QDialog>
#include <array>

#include "shell/Aplicacion.h"
#include "shell/CajaMensajes.h"
#include "slab/ui/LosaGeneral.h"

namespace trabex::programa::qt {
class CampoNumero;
}

namespace trabex::losas::ui::qt {

/// Edits the design parameters of all slabs of the project that is connected.
class VentanaLosaGeneral : public QDialog {
  public:
    VentanaLosaGeneral(programa::Aplicacion& aplicacion, programa::CajaMensajes& caja, QWidget* padre);

  private:
    void Armar();
    void Mostrar(const DatosGenerales& generales);
    DatosGenerales Entrados() const;
    double Numero(CampoLosaGeneral campo) const;
    void Aceptar();

    programa::Aplicacion& aplicacion_;
    LosaGeneral operaciones_;
    std::array<programa::qt::CampoNumero*, 7> campos_{};
};

}  // namespace trabex::losas::ui::qt
