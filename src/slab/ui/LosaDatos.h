#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "base/Formatos.h"
#include "slab/ui/Cargas.h"
#include "slab/ui/Losas.h"

namespace trabex::losas::ui {

enum class PaginaLosa { Seccion, Tramos, JuntasD, Apoyos, Cargas };
inline constexpr int PaginasDeLosa = 5;

enum class CampoSeccion { Bo, Ho, So, Loseta, Hm };

/// What of a span is copied to others.
struct QueCopiar {
    bool Longitud = false;
    bool CargaUniforme = true;
    bool CargaPuntual = true;
};

/// What the data window's operations ask of it.
class PantallaLosaDatos {
  public:
    virtual ~PantallaLosaDatos() = default;
    /// Fills every control from the editing copy.
    virtual void Rellenar() = 0;
    /// Tables, scroller and sketches again: the number of spans or of displaced joints, or loads, changed.
    virtual void Refrescar() = 0;
    /// The sketches, after any edit and when the span in hand changes.
    virtual void Redibujar() = 0;
    virtual PaginaLosa Pagina() const = 0;
    virtual void MostrarPagina(PaginaLosa pagina) = 0;
    virtual void EnfocarCampo(CampoSeccion campo) = 0;
    /// Current row of the support table, from 1.
    virtual std::size_t FilaDeApoyo() const = 0;
    virtual void IrAFilaDeApoyo(std::size_t fila) = 0;
    /// Load windows, each modal; true when loads changed.
    virtual bool MostrarCarga01(const EntradaDeCarga& entrada) = 0;
    virtual bool MostrarCarga02(const EntradaDeCarga& entrada) = 0;
    virtual void Cerrar() = 0;
};

/// Operations of the window that edits one slab on a copy of it: the open slab changes only on a save.
class LosaDatos {
  public:
    LosaDatos(Losas& losas, PantallaLosaDatos& pantalla, programa::CajaMensajes& caja);

    /// Takes the open slab and shows it.
    void Abrir();

    const Losa& Edicion() const { return edicion_; }
    std::size_t NumeroDeTramos() const { return edicion_.Tramos.size() - 1; }
    std::size_t NumeroDeJuntasD() const { return edicion_.JuntasD.size() - 1; }
    /// What the window tells when it closes: something was saved, so the slab is to be calculated again. A
    /// load window that was opened after the save and changed nothing takes it back.
    bool LosaModificada() const { return modificada_; }

    std::string Titulo() const { return "Datos Generales Losa: " + edicion_.Nombre; }
    std::string LeyendaDeCargas() const;
    /// "Tramo: n", 0 until there is one.
    std::string LeyendaDeTramo() const { return "Tramo: " + std::to_string(tramo_); }
    std::size_t TramoActual() const { return tramo_; }
    /// Factored moments of a trial calculation of what stands in the window, at axes and in spans in their
    /// order; of a long slab the largest ones. Empty while the slab can't be calculated.
    std::string MomentosDePrueba(const Separadores& numeros) const;

    // Edits. Those that answer false refused the entry, with its message: the cell shows the old value.
    void PonerMaciza(bool maciza);
    void PonerSeccion(CampoSeccion campo, double valor);
    double Seccion(CampoSeccion campo) const;
    /// What remains keeps its data, and what is cut comes back when the number is raised again before a save;
    /// new joints get a fixed support. Displaced joints stay as they were entered.
    void PonerNumeroTramos(std::size_t tramos);
    void PonerEje(std::size_t junta, const std::string& eje);
    void PonerLongitud(std::size_t tramo, double LT);
    bool PonerTipo(std::size_t junta, std::int64_t tipo);
    bool PonerNumeroJuntasD(std::size_t juntas);
    bool PonerJunta(std::size_t registro, std::int64_t junta);
    void PonerCorrimiento(std::size_t registro, double x, double y);
    void PonerCargas(std::size_t tramo, const Tramo& cargas);

    /// Gives spans what another one has of `que`.
    void CopiarTramo(std::size_t desde, const std::vector<std::size_t>& a, const QueCopiar& que);

    /// A support type button: writes into the current row of the table and moves on to the next.
    void PulsarTipo(std::int16_t tipo);
    /// The scroller of spans.
    void MoverATramo(std::size_t tramo);
    void CargaUniforme();
    void CargaPuntual();

    /// The save button. False when a zero took the focus, or the project could not be written: nothing is
    /// then stored and the open slab stands as it stood.
    bool Salvar();
    void Retorno();
    /// What the window's cross and " Retorno " do before closing. False when it must stay.
    bool PuedeCerrar();
    /// The slab selector: a row of the workspace's list. False when the window stays on its slab.
    bool ElegirLosa(int fila);
    void PaginaSiguiente();
    void PaginaAnterior();

  private:
    bool SalvarSiSePide(const std::string& texto);
    bool SalvarDatos();
    void OlvidarCortados();
    bool ConCeros();
    void Cambiado();
    void AbrirCarga(bool (PantallaLosaDatos::*mostrar)(const EntradaDeCarga&));

    Losas& losas_;
    PantallaLosaDatos& pantalla_;
    programa::CajaMensajes& caja_;
    Losa edicion_;
    std::vector<Tramo> tramosCortados_;  // by their places in the slab, until a save
    std::vector<EjeLosa> ejesCortados_;
    bool cambios_ = false;  // not saved yet
    bool modificada_ = false;
    std::size_t tramo_ = 0;
};

}  // namespace trabex::losas::ui
