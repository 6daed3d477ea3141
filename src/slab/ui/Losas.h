#pragma once

#include <optional>

#include "drawing/losa/GraficoLosa.h"
#include "drawing/losa/ToqueDeHoja.h"
#include "shell/ListaElementos.h"
#include "slab/Losa.h"
#include "slab/ResultadosLosa.h"

namespace trabex::losas::ui {

/// What the slab workspace's operations ask of its window beside what those of every workspace do.
class PantallaLosas {
  public:
    virtual ~PantallaLosas() = default;
    virtual void MarcarOpcionCarga(dibujo::losa::OpcionDeCarga opcion) = 0;
    virtual void MarcarPorGrupos(bool porGrupos) = 0;

    // Windows, each modal: the call returns when it closes.
    /// True when a slab was added.
    virtual bool MostrarLosaNueva() = 0;
    virtual bool MostrarLosaSalvarComo() = 0;
    /// At a place of the slab, or at its beginning. True when something was saved: the slab is calculated
    /// again.
    virtual bool MostrarLosaDatos(const std::optional<dibujo::losa::Toque>& lugar) = 0;
    virtual bool MostrarLosaGeneral() = 0;
};

/// What lasts from one opening of the workspace to the next: depths of the slab last saved in this run, m. A
/// new one starts with them.
struct MemoriaLosas {
    double UltimoHo = 0.25;
    double UltimoHm = 0.2;
};

/// What the workspace holds while it is up.
struct EstadoLosas {
    Losa Abierta;  ///< the slab of the selected row
    ResultadosLosa Resultados;
    dibujo::losa::HojaLosa Hoja;  ///< viewport, sheet on show, load option
};

/// Operations of the slab workspace: what acts on the selected slab of its list.
class Losas : private programa::ElementoDeLista {
  public:
    Losas(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
          programa::PantallaEspacio& espacio, PantallaLosas& pantalla, MemoriaLosas& memoria);

    programa::ListaElementos& Lista() { return lista_; }

    void CrearNueva();
    void CrearDesdeSeleccionada();
    /// Opens the entry window, at a place of the slab if one is told.
    void Modificar(const std::optional<dibujo::losa::Toque>& lugar = {});
    void DatosGenerales();

    /// Calculates the open slab and draws the sheet on show.
    void Calcular();
    void ElegirHoja(dibujo::losa::VistaLosa vista);
    void ElegirOpcionCarga(dibujo::losa::OpcionDeCarga opcion);
    /// Shows one group of spans at a time, or the whole slab.
    void VerPorGrupos(bool porGrupos);
    /// Goes on to the group `pasos` away, as far as there are groups; from the whole slab to its first one.
    void CambiarGrupo(int pasos);

    EstadoLosas& Estado() { return estado_; }
    LosaCalculada Calculada() const { return {estado_.Abierta, aplicacion_.Generales, estado_.Resultados}; }
    programa::Aplicacion& Programa() { return aplicacion_; }
    MemoriaLosas& Memoria() { return memoria_; }

  private:
    void AlConectar() override;
    void AlSeleccionar() override;
    void AlAgregar() override;
    void AlVaciar() override;
    void AlLlenar() override;
    void PonerEncabezado();
    void MostrarGrupo(bool porGrupos, std::size_t grupo);

    programa::Aplicacion& aplicacion_;
    programa::PantallaEspacio& espacio_;
    PantallaLosas& pantalla_;
    MemoriaLosas& memoria_;
    EstadoLosas estado_;
    programa::ListaElementos lista_;
};

}  // namespace trabex::losas::ui
