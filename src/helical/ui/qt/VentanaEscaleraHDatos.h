#pragma once

#include "helical/ui/EscaleraHDatos.h"
#include "stairs/ui/qt/VentanaDatosDeEscalera.h"

namespace trabex::helices::ui::qt {

/// Edits a helical stair, with its plan and its perspective beside the fields.
class VentanaEscaleraHDatos : public escaleras::ui::qt::VentanaDatosDeEscalera,
                              private PantallaEscaleraHDatos {
  public:
    VentanaEscaleraHDatos(const TrabajoEscaleraH& trabajo, const programa::Aplicacion& aplicacion,
                          programa::CajaMensajes& caja, QWidget* padre);

  private:
    void Enfocar(CampoEscaleraH campo) override { Campos().Enfocar(campo); }
    void Pitar() override;
    std::string Nombre() const override { return operaciones_.Nombre(); }
    void MostrarValores() override;
    void AlEditar() override { operaciones_.Cambiar(); }
    void Salvar() override { operaciones_.Salvar(Entrados()); }
    bool Cerrar() override { return operaciones_.Cerrar(Entrados()); }
    void DibujarBoceto(dibujo::Lienzo& lienzo, dibujo::EstadoVista& vista) const override;
    EntradaEscaleraH Entrados() const;

    EscaleraHDatos operaciones_;
};

}  // namespace trabex::helices::ui::qt
