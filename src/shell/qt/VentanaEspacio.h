#pragma once

#include <QDialog>
#include <functional>
#include <map>
#include <span>
#include <string_view>
#include <vector>

#include "drawing/Visor.h"
#include "shell/ComandosEspacio.h"
#include "shell/ListaElementos.h"
#include "shell/PantallaEspacio.h"

class QAction;
class QLabel;
class QListWidget;
class QMenuBar;
class QSplitter;
class QStackedWidget;
class QTabBar;

namespace trabex::dibujo {
class Lienzo;
class LectorDeVista;
}  // namespace trabex::dibujo
namespace trabex::dibujo::qt {
class WidgetLienzo;
}

namespace trabex::programa::qt {

/// A tab that is no sheet of the canvas: widgets of the element's own, which the window owns from then on.
struct PaginaDeEspacio {
    const char* Titulo;
    QWidget* Contenido;
};

/// What an element gives to its workspace window.
struct DatosDeEspacio {
    const char* Nombre;                        ///< of the window: its layout is remembered under it
    const char* RotuloLista;                   ///< over the list, with its mnemonic
    const char* MenuElemento;                  ///< title of the menu of what acts on the list
    std::span<const ComandoEspacio> Comandos;  ///< beside those of the drawing; grouped, in order
    std::span<const char* const> Hojas;        ///< titles of the tabs that the canvas shows
    ListaElementos& Lista;
    dibujo::EstadoVista& Vista;
    std::function<void(dibujo::Lienzo&)> Dibujar;  ///< the sheet on show, whole
    std::function<void(int)> AlElegirHoja;         ///< a tab came to the front; sheets first, then pages
    /// What each command does, by its key, but those that the list and the drawing have themselves
    /// (`ID_Abrir`, `ID_Renombrar`, `ID_Eliminar`, `ID_Anterior`, `ID_Siguiente`). A command without any is
    /// disabled.
    std::map<std::string_view, std::function<void()>> Operaciones;
    QWidget* BajoLaLista = nullptr;
    dibujo::TeclasDeVista Teclas = {};
    std::vector<PaginaDeEspacio> Paginas = {};  ///< the tabs behind those of the sheets
    bool ListaNumerada = false;                 ///< under the heading "No"
    dibujo::LectorDeVista* Lector = nullptr;    ///< of the drawing, where one reads it; outlives the window
};

/// The workspace of an element: its list and the sheets and pages of the selected one, with tool bar, menu
/// bar, context menus and keys from a table of commands. Commands of the drawing are disabled while a page is
/// in front, and those that walk the list at its ends.
class VentanaEspacio : public QDialog, public PantallaEspacio {
  public:
    QAction* Accion(std::string_view clave) const { return acciones_.at(clave); }

    void PonerTitulo(const std::string& titulo) override;
    void PonerEstado(const std::string& texto) override;
    /// What is read in the drawing takes the foot's line, as long as it is not empty.
    void PonerLectura(const std::string& texto);
    void PonerEncabezado(const std::string& texto) override;
    void PonerAvisos(const Avisos& avisos) override;
    void LlenarLista(const std::vector<std::string>& nombres) override;
    void MarcarFila(int fila) override;
    void MarcarFalla(int fila, bool falla) override;
    void MarcarHoja(int hoja) override;
    void RestablecerVista() override;
    void Redibujar() override;
    void MostrarRenombrar(Renombrar& operaciones) override;

  protected:
    VentanaEspacio(const Tapiz& preferencias, QWidget* padre);
    /// Builds the window and opens its list. To be called once, by the constructor of the element's window.
    void Armar(const DatosDeEspacio& datos);
    /// Escape belongs to the drawing; the window closes by " Retorno " or its cross.
    void keyPressEvent(QKeyEvent* evento) override;
    void hideEvent(QHideEvent* evento) override;

  private:
    void PonerOrdenDeTab(const DatosDeEspacio& datos);
    void CrearAcciones(const DatosDeEspacio& datos);
    void CrearAccion(const ComandoEspacio& comando, const DatosDeEspacio& datos);
    void ConectarVista();
    void PonerAtajos();
    QMenuBar* BarraDeMenus(const DatosDeEspacio& datos);
    QLayout* BarraDeMandos();
    void CrearMenusDeContexto();
    void AgregarComandos(QWidget& destino, GrupoComandos grupo) const;
    QWidget* PanelDeLista(const DatosDeEspacio& datos);
    QWidget* PanelDeHojas(const DatosDeEspacio& datos);
    QSplitter* Partes(const DatosDeEspacio& datos);
    bool HojaAlFrente() const;
    void PonerAlFrente(int hoja);
    void HabilitarComandos();
    bool Habilitado(const ComandoEspacio& comando) const;

    const Tapiz& preferencias_;
    ListaElementos* operaciones_ = nullptr;
    std::vector<ComandoEspacio> comandos_;
    std::map<std::string_view, QAction*> acciones_;
    QListWidget* lista_ = nullptr;
    QLabel* encabezado_ = nullptr;
    QLabel* pie_ = nullptr;
    QLabel* avisos_ = nullptr;
    std::string estado_;
    bool leyendo_ = false;
    QSplitter* partes_ = nullptr;
    QTabBar* hojas_ = nullptr;
    QStackedWidget* frente_ = nullptr;  // the canvas, then the pages
    dibujo::qt::WidgetLienzo* lienzo_ = nullptr;
};

}  // namespace trabex::programa::qt
