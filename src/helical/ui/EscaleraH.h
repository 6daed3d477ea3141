#pragma once

#include <optional>

#include "drawing/helice/HojaHelice.h"
#include "helical/EscaleraHCalculada.h"
#include "helical/ui/EscaleraHDatos.h"
#include "shell/ListaElementos.h"

namespace trabex::helices::ui {

/// What the operations of the workspace of helical stairs ask of its window beside what those of every
/// workspace do. Windows are modal: the call returns when they close.
class PantallaEscaleraH {
  public:
    virtual ~PantallaEscaleraH() = default;
    /// True when a stair was added.
    virtual bool MostrarEscaleraTNueva() = 0;
    virtual void MostrarEscaleraHDatos(const TrabajoEscaleraH& trabajo) = 0;
    virtual void MostrarEscaleraTG() = 0;
    /// True when something was saved.
    virtual bool MostrarEscaleraTitulo() = 0;
    /// Fills both grids, of forces and of design; those of a stair that was not calculated are empty.
    virtual void PonerPaneles(const EscaleraHCalculada& escalera) = 0;
    /// The view is being turned so, or not.
    virtual void MarcarGiro(dibujo::helice::ModoGiro modo) = 0;
};

/// What the workspace holds while it is up.
struct EstadoEscaleraH {
    DatosEscaleraH Abierta;  ///< the current stair
    bool Nueva = false;      ///< it was just created, and its data have not been saved
    /// What the panels and the drawing show: the current stair with its results, or, where its calculation
    /// failed, what stood there before.
    DatosEscaleraH Mostrada;
    ResultadosEscaleraH Resultados;
    std::optional<ErrorEjecucion> Fallo;  ///< of the calculation of the stair read last
    dibujo::helice::HojaHelice Hoja;
};

/// Operations of the workspace of helical stairs: what acts on the selected stair of its list.
class EscaleraH : private programa::ElementoDeLista {
  public:
    EscaleraH(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
              programa::PantallaEspacio& espacio, PantallaEscaleraH& pantalla);

    programa::ListaElementos& Lista() { return lista_; }

    void Nueva();
    void Editar();
    void DatosGenerales();
    void Titulo();
    /// The drawing came to the front.
    void MostrarDibujo() { lista_.Redibujar(); }

    /// "Girar Verticalmente" and "Girar Horizontalmente": sets the mode, and again ends it.
    void Girar(dibujo::helice::ModoGiro modo);
    /// "Angulo Normal".
    void AnguloNormal();
    /// A tick of the window's timer.
    void AvanzarGiro();
    /// Keys of the picture: while it is being turned, its arrows turn it.
    dibujo::TeclasDeVista Teclas();

    /// Reads the current stair again, after a report has walked the list.
    void Releer();

    EstadoEscaleraH& Estado() { return estado_; }
    EscaleraHCalculada Calculada() const { return {estado_.Mostrada, estado_.Resultados}; }

  private:
    void AlConectar() override;
    void AlSeleccionar() override;
    void AlAgregar() override;
    void AlVaciar() override;
    void AlLlenar() override;
    void LeaDatosEscalera();
    /// The panels and the drawing show `resultados` of the current stair.
    void Mostrar(ResultadosEscaleraH resultados);
    /// Shows the data window; true when it saved.
    bool MostrarDatos();

    programa::Aplicacion& aplicacion_;
    programa::PantallaEspacio& espacio_;
    PantallaEscaleraH& pantalla_;
    EstadoEscaleraH estado_;
    programa::ListaElementos lista_;
};

}  // namespace trabex::helices::ui
