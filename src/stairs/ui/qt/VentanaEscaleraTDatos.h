#pragma once

#include "stairs/ui/EscaleraTDatos.h"
#include "stairs/ui/qt/VentanaDatosDeEscalera.h"

namespace trabex::escaleras::ui::qt {

/// Edits a self-supporting stair, with its plan and section beside the fields.
class VentanaEscaleraTDatos : public VentanaDatosDeEscalera, private PantallaDeCampos<CampoEscaleraT> {
  public:
    VentanaEscaleraTDatos(const TrabajoEscaleraT& trabajo, const programa::Aplicacion& aplicacion,
                          programa::CajaMensajes& caja, QWidget* padre);

  private:
    void Enfocar(CampoEscaleraT campo) override { Campos().Enfocar(campo); }
    std::string Nombre() const override { return operaciones_.Nombre(); }
    void MostrarValores() override;
    void AlEditar() override { operaciones_.Cambiar(); }
    void Salvar() override { operaciones_.Salvar(Entrados()); }
    bool Cerrar() override { return operaciones_.Cerrar(Entrados()); }
    void AgregarBotones(QHBoxLayout& fila) override;
    void DibujarBoceto(dibujo::Lienzo& lienzo, dibujo::EstadoVista& vista) const override;
    DatosEscaleraT Entrados() const;

    EscaleraTDatos operaciones_;
};

}  // namespace trabex::escaleras::ui::qt
