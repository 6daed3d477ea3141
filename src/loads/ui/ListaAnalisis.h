#pragma once

#include <optional>
#include <string>
#include <vector>

#include "loads/Creacion.h"
#include "loads/Variantes.h"
#include "loads/ui/AnalisisCargaModificar.h"
#include "loads/ui/NuevoAnalisisCarga.h"
#include "shell/Aplicacion.h"
#include "shell/Servicios.h"

namespace trabex::cargas::ui {

/// A line of the list.
struct LineaDeAnalisis {
    std::string Descripcion;
    double Carga = 0;  ///< kgf/m²
};

enum class CampoDeLinea { Descripcion, Carga };

class ListaAnalisis;

/// What the operations ask of their window. Rows count from 1; 0 is none.
class PantallaListaAnalisis {
  public:
    virtual ~PantallaListaAnalisis() = default;
    virtual void LlenarLista(const std::vector<LineaDeAnalisis>& lineas) = 0;
    virtual void MarcarFila(int fila) = 0;
    virtual void PonerCarga(int fila, double carga) = 0;
    virtual void EnfocarLista() = 0;
    /// Line at the window's foot.
    virtual void PonerEstado(const std::string& texto) = 0;
    // Windows over this one, until they close.
    virtual void MostrarNuevo(NuevoAnalisisCarga& operaciones) = 0;
    virtual void MostrarModificar(AnalisisCargaModificar& operaciones) = 0;
    /// `OpcionAnalisisCarga`: whether all analyses are reported, or the selected one. Nothing when the
    /// engineer cancels.
    virtual std::optional<bool> MostrarOpcion() = 0;
    /// The window of report output, on what is staged.
    virtual void MostrarReporte(std::int16_t reporteActual) = 0;
    /// The shared analyses, from a project's window.
    virtual void MostrarCompartidos(ListaAnalisis& operaciones) = 0;
};

/// Operations of the windows `AnalisisCargaP` and `AnalisisCarga`: the list of analyses of a project, and the
/// shared one. The selected line is the position of the list.
class ListaAnalisis {
  public:
    /// `destino`: the project's list from which the shared one was opened, into which it captures; null where
    /// there is none.
    ListaAnalisis(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                  const VarianteAnalisis& variante, FuenteAzar azar, ListaAnalisis* destino = nullptr);
    ~ListaAnalisis() { Cerrar(); }
    ListaAnalisis(const ListaAnalisis&) = delete;
    ListaAnalisis& operator=(const ListaAnalisis&) = delete;

    /// Connects to the shared database, and to the project where the list is its; what can't be read counts
    /// as empty.
    void Abrir(PantallaListaAnalisis& pantalla);
    void Cerrar();
    /// Reads everything again where another program changed the list, and selects the analysis that was
    /// selected where it is still there.
    void NotarCambios();

    const VarianteAnalisis& Variante() const { return variante_; }
    int NumeroDeAnalisis() const { return Lista().NumeroRegistros(); }
    int Fila() const { return Lista().Posicion(); }
    void Seleccionar(int fila) { Lista().MoverA(fila); }

    void Crear();
    /// Opens the edit window on the selected line; nothing in an empty list.
    void Modificar();
    /// Deletes the selected analysis, after its question.
    void Eliminar();
    /// "Modificar las Celdas": a changed cell goes back to the row at the same position. False when it is no
    /// number, or, with a message, when it could not be stored.
    bool ModificarCelda(int fila, CampoDeLinea campo, const std::string& texto);
    /// Reports the selected analysis or all of them; nothing in an empty list.
    void Exportar();
    /// A project's window opens the shared analyses over itself.
    void VerCompartidos();

    bool PuedeCapturar() const { return destino_ != nullptr; }
    /// "Capturar al Análisis de Carga": copies the selected shared analysis into the project, after its
    /// question; once only.
    void Capturar();

  private:
    almacen::Conexion& Conexion();
    almacen::Recordset& Lista() { return DelProyecto() ? aplicacion_.Proyecto.RegistrosProyecto : lista_; }
    const almacen::Recordset& Lista() const {
        return DelProyecto() ? aplicacion_.Proyecto.RegistrosProyecto : lista_;
    }
    bool DelProyecto() const { return variante_.Donde == Ambito::Proyecto; }
    bool EnUnaLinea() const { return Fila() >= 1 && Fila() <= NumeroDeAnalisis(); }
    void Rellenar();
    void Reabrir();
    void Conectar();
    void MostrarEstado(bool releido);

    programa::Aplicacion& aplicacion_;
    programa::Servicios servicios_;
    const VarianteAnalisis& variante_;
    FuenteAzar azar_;
    ListaAnalisis* destino_;
    PantallaListaAnalisis* pantalla_ = nullptr;
    almacen::Conexion compartida_;
    almacen::Recordset lista_;  ///< the shared list; a project's is the program's
};

}  // namespace trabex::cargas::ui
