#pragma once

#include "drawing/escalera/GraficoEscalera.h"
#include "shell/ListaElementos.h"
#include "stairs/DatosEscaleraT.h"
#include "stairs/ResultadosEscaleraT.h"
#include "stairs/ui/EscaleraTDatos.h"

namespace trabex::escaleras::ui {

/// What the operations of the workspace of stairs ask of its window beside what those of every workspace do.
/// Windows are modal: the call returns when they close.
class PantallaEscaleraT {
  public:
    virtual ~PantallaEscaleraT() = default;
    /// True when a stair was added.
    virtual bool MostrarEscaleraTNueva() = 0;
    virtual void MostrarEscaleraTDatos(const TrabajoEscaleraT& trabajo) = 0;
    /// True when something was saved.
    virtual bool MostrarEscaleraTG() = 0;
    virtual bool MostrarEscaleraTitulo() = 0;
};

/// What the workspace holds while it is up.
struct EstadoEscaleraT {
    DatosEscaleraT Abierta;  ///< the current stair
    ResultadosEscaleraT Resultados;
    dibujo::escalera::HojaEscalera Hoja;
};

/// Operations of the workspace of self-supporting stairs: what acts on the selected stair of its list.
class EscaleraT : private programa::ElementoDeLista {
  public:
    EscaleraT(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
              programa::PantallaEspacio& espacio, PantallaEscaleraT& pantalla);

    programa::ListaElementos& Lista() { return lista_; }

    void Nueva();
    void Editar();
    void DatosGenerales();
    void Titulo();
    /// Another tab: its sheet whole.
    void ElegirHoja(dibujo::escalera::VistaEscalera hoja);

    EstadoEscaleraT& Estado() { return estado_; }
    EscaleraCalculada Calculada() const {
        return {estado_.Abierta, aplicacion_.Generales, estado_.Resultados};
    }

  private:
    void AlConectar() override;
    void AlSeleccionar() override;
    /// The stair just added is calculated without being read: left without a save, what is shown is still the
    /// stair that was selected before, until a row is selected again.
    void AlAgregar() override;
    void AlVaciar() override;
    /// Each stair is calculated: an engineer sees at opening which of them fail.
    void AlLlenar() override;
    void PonerEncabezado();
    void Calcular();
    /// Shows the data window; true when it saved.
    bool MostrarDatos(bool nueva);

    programa::Aplicacion& aplicacion_;
    programa::PantallaEspacio& espacio_;
    PantallaEscaleraT& pantalla_;
    EstadoEscaleraT estado_;
    programa::ListaElementos lista_;
};

}  // namespace trabex::escaleras::ui
