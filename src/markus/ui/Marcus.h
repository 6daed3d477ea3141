#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "markus/ui/PanosEnEdicion.h"
#include "shell/ListaElementos.h"

namespace trabex::marcus::ui {

/// A row of the grid of levels.
struct FilaDeNivel {
    std::string Nombre;
    int Panos = 0;
};

/// What the operations ask of their window beside what every list does. Rows and columns count from 1.
class PantallaMarcus {
  public:
    virtual ~PantallaMarcus() = default;
    /// Levels were added, deleted or renamed, or the count of one was set.
    virtual void MostrarNiveles() = 0;
    /// The panels of another level came on show, or the level has another name.
    virtual void MostrarNivel() = 0;
    /// Panels changed: their number, their data or their shares.
    virtual void MostrarPanos() = 0;
    /// No cell of the grid of panels is selected any more.
    virtual void SoltarBloque() = 0;
    /// Asks for a text; empty when the engineer cancels.
    virtual std::string Pedir(const std::string& texto, const std::string& encabezado) = 0;
    /// The window that names a new level. True when it was added.
    virtual bool MostrarMarcusNuevo() = 0;
    /// The window of report output, until it closes.
    virtual void MostrarReporte() = 0;
};

/// Cells of the grid of panels that are selected together.
struct Bloque {
    int PrimeraFila;
    int UltimaFila;
    int PrimeraColumna;
    int UltimaColumna;
};

/// Operations of the window `Marcus`: the levels of a project and the panels of the selected one. Panels that
/// were not saved are lost when another level is selected; the question on closing comes all the same.
class Marcus : private programa::ElementoDeLista {
  public:
    Marcus(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
           programa::PantallaEspacio& espacio, PantallaMarcus& pantalla);

    programa::ListaElementos& Lista() { return lista_; }
    const std::vector<FilaDeNivel>& Niveles() const { return niveles_; }
    /// Whose panels are on show; empty while there is no level.
    const std::string& Nivel() const { return nivel_; }
    PanosEnEdicion& Panos() { return panos_; }
    bool Modificado() const { return modificado_; }

    void SeleccionarNivel(int fila);
    /// `Paños` of the selected level, 0 … 32767: ColoquePantalla1.
    void PonerNumeroDePanos(int panos);
    void PonerPano(int fila, ColumnaDePano columna, double valor);
    /// A block was selected: when it lies in one column of numbers, asks for the number of all its cells.
    void EntrarBloque(const Bloque& bloque);
    void Deshacer();

    /// SalveMarcus. False when it could not be stored; what was stored then stands.
    bool Salvar();
    void Crear();
    void Imprimir();
    /// Reads the levels again where another program changed them, unless that would lose what was entered.
    void NotarCambios();
    /// Asks what becomes of changes. False when the window stays.
    bool PuedeCerrar();

  private:
    void AlConectar() override;
    void AlSeleccionar() override;
    void AlAgregar() override;
    void AlVaciar() override;
    void AlLlenar() override;
    void AlRenombrar() override;

    void Cargar(NivelMarcus nivel);
    void Cambiado();

    programa::Aplicacion& aplicacion_;
    programa::Servicios servicios_;
    PantallaMarcus& pantalla_;
    std::vector<FilaDeNivel> niveles_;
    std::string nivel_;
    PanosEnEdicion panos_;
    bool modificado_ = false;
    programa::ListaElementos lista_;
};

/// Operations of the window that names a new level.
class MarcusNuevo {
  public:
    explicit MarcusNuevo(programa::ListaElementos& lista) : lista_(lista) {}
    /// " Aceptar ": adds the level, without panels, at the list's end. False keeps the window.
    bool Aceptar(const std::string& entrado);

  private:
    programa::ListaElementos& lista_;
};

}  // namespace trabex::marcus::ui
