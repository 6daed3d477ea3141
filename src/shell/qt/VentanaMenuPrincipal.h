#pragma once

#include <QMainWindow>
#include <map>
#include <string_view>

#include "shell/MenuPrincipal.h"
#include "shell/qt/ComunVentanas.h"
#include "shell/qt/LienzoTapiz.h"

class QLabel;

namespace trabex::programa::qt {

/// Opens the windows of the elements. The program gives it to the main window; an element that is not built
/// has none.
class EspaciosDeTrabajo {
  public:
    virtual ~EspaciosDeTrabajo() = default;
    /// Shows a workspace until it closes.
    virtual void Mostrar(Espacio espacio, QWidget* padre) = 0;
};

/// The main window: menus, tool bar, wallpaper and status panel over the operations of MenuPrincipal.
class VentanaMenuPrincipal : public QMainWindow, public VistaMenuPrincipal {
  public:
    VentanaMenuPrincipal(Aplicacion& aplicacion, CajaMensajes& caja, DialogosArchivo& dialogos,
                         Plataforma& plataforma, EspaciosDeTrabajo& espacios);

    /// The action of a command's key; null for an unknown one.
    QAction* Accion(std::string_view clave) const;

    void PonerTitulo(const std::string& titulo) override;
    void PonerRevision(const std::string& texto) override;
    void HabilitarSalvarComo(bool habilitado) override;
    void PunteroDeEspera(bool espera) override;
    void PonerTapiz(const Tapiz& tapiz) override;
    void Repintar() override;
    void Cerrar() override;
    void MostrarDatosProyecto() override;
    void MostrarConfiguracion() override;
    void MostrarReparacion() override;
    void MostrarSobre() override;
    void MostrarEspacio(Espacio espacio) override;

  private:
    void CrearAcciones();
    void CrearMenus();
    void CrearBarra();
    void CrearPanelEstado();

    Aplicacion& aplicacion_;
    CajaMensajes& caja_;
    DialogosArchivo& dialogos_;
    Plataforma& plataforma_;
    EspaciosDeTrabajo& espacios_;
    MenuPrincipal operaciones_;
    std::map<std::string_view, QAction*> acciones_;
    LienzoTapiz* tapiz_;
    QLabel* revision_;
    QLabel* proyecto_;
    PunteroDeTrabajo puntero_;
};

}  // namespace trabex::programa::qt
