#pragma once

#include <QDialog>
#include <array>

#include "shell/Aplicacion.h"
#include "shell/CajaMensajes.h"
#include "slab/ui/LosaGeneral.h"

namespace trabex {

class CampoNumero;

/// Edits the design parameters of all slabs of the project that is connected.
class VentanaLosaGeneral : public QDialog {
  public:
    VentanaLosaGeneral(Aplicacion& aplicacion, CajaMensajes& caja, QWidget* padre);

  private:
    void Armar();
    void Mostrar(const DatosGenerales& generales);
    DatosGenerales Entrados() const;
    double Numero(CampoLosaGeneral campo) const;
    void Aceptar();

    Aplicacion& aplicacion_;
    CajaMensajes& caja_;
    LosaGeneral operaciones_;
    std::array<CampoNumero*, 7> campos_{};
};

}  // namespace trabex
