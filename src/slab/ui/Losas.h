#pragma once

#include <string>
#include <vector>

#include "drawing/losa/GraficoLosa.h"
#include "shell/Aplicacion.h"
#include "shell/CajaMensajes.h"
#include "shell/DialogosArchivo.h"
#include "slab/Losa.h"
#include "slab/ResultadosLosa.h"

namespace trabex::losas::ui {

/// What the slab workspace's operations ask of its window.
class VistaLosas {
  public:
    virtual ~VistaLosas() = default;
    virtual void PonerTitulo(const std::string& titulo) = 0;
    /// Line at the window's foot.
    virtual void PonerEstado(const std::string& texto) = 0;
    /// "LOSA NERVADA: " or "LOSA MACIZA: " and the name; empty without a slab.
    virtual void PonerEncabezado(const std::string& texto) = 0;

    // The list. Rows count from 1.
    virtual void LlenarLista(const std::vector<std::string>& nombres) = 0;
    virtual void AgregarFila(const std::string& nombre) = 0;
    virtual void QuitarFila(int fila) = 0;
    virtual void MarcarFila(int fila) = 0;

    /// Zoom 1 and no pan.
    virtual void RestablecerVista() = 0;
    /// Draws the sheet on show, now.
    virtual void Redibujar() = 0;

    // Windows, each modal: the call returns when it closes.
    virtual void MostrarLosaNueva() = 0;
    virtual void MostrarLosaSalvarComo() = 0;
    virtual void MostrarLosaDatos() = 0;
    virtual void MostrarLosaGeneral() = 0;
    /// The new name, or an empty text when the user gave none.
    virtual std::string MostrarRenombrar(const std::string& actual) = 0;
};

/// What the workspace holds while it is up.
struct EstadoLosas {
    Losa Abierta;  ///< the slab of the selected row
    ResultadosLosa Resultados;
    dibujo::losa::HojaLosa Hoja;  ///< viewport, sheet on show, load option
    bool LosaCreada = false;      ///< a window added a slab
    bool Cargando = true;         ///< the workspace is opening: nothing is drawn
};

/// Operations of the slab workspace: the list of the project's slabs and what acts on the selected one. The
/// selected row is the position of the project's list of records.
class Losas {
  public:
    Losas(programa::Aplicacion& aplicacion, VistaLosas& vista, programa::CajaMensajes& caja,
          programa::DialogosArchivo& dialogos);

    /// Connects to the current project and selects its first slab.
    void Abrir();
    /// Closes the list, then the connection.
    void Cerrar();
    /// The workspace's own open command: another project takes the place of this one.
    void AbrirProyecto();

    /// A row of the list: reads its slab, calculates it and shows it with the view at its start.
    void Seleccionar(int fila);
    int Fila() const { return aplicacion_.Proyecto.RegistrosProyecto.Posicion(); }
    int NumeroDeLosas() const { return aplicacion_.Proyecto.RegistrosProyecto.NumeroRegistros(); }
    /// The slabs in list order.
    std::vector<std::string> Nombres();

    void CrearNueva();
    void CrearDesdeSeleccionada();
    void Modificar();
    void Renombrar();
    void Eliminar();
    void DatosGenerales();

    /// Calculates the open slab and draws the sheet on show.
    void Calcular();
    void ElegirVista(dibujo::losa::VistaLosa vista);
    void ElegirOpcionCarga(dibujo::losa::OpcionDeCarga opcion);

    EstadoLosas& Estado() { return estado_; }
    LosaCalculada Calculada() const { return {estado_.Abierta, aplicacion_.Generales, estado_.Resultados}; }
    programa::Aplicacion& Programa() { return aplicacion_; }

  private:
    almacen::Recordset& Lista() { return aplicacion_.Proyecto.RegistrosProyecto; }
    void Conectar();
    void AbrirLista();
    void MostrarPrimera();
    void Limpiar();
    void Redibujar();
    void EntrarDatosDeLaNueva();
    void CalcularSiModificada();

    programa::Aplicacion& aplicacion_;
    VistaLosas& vista_;
    programa::CajaMensajes& caja_;
    programa::DialogosArchivo& dialogos_;
    EstadoLosas estado_;
};

}  // namespace trabex::losas::ui
