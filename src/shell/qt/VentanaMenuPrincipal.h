#pragma once

#include <QMainWindow>
#include <map>
#include <string_view>
#include <vector>

#include "shell/MenuPrincipal.h"
#include "shell/qt/AyudaF1.h"
#include "shell/qt/ComunVentanas.h"
#include "shell/qt/Espacio.h"
#include "shell/qt/LienzoTapiz.h"

class QLabel;
class QMenu;

namespace trabex::programa::qt {

/// The main window: menus, tool bar, wallpaper and status panel over the operations of MenuPrincipal.
class VentanaMenuPrincipal : public QMainWindow, public PantallaMenuPrincipal {
  public:
    VentanaMenuPrincipal(Aplicacion& aplicacion, const Servicios& servicios, std::vector<Espacio> espacios);

    /// The action of a command's key; null for an unknown one.
    QAction* Accion(std::string_view clave) const;

    void PonerTitulo(const std::string& titulo) override;
    void PonerRevision(const std::string& texto) override;
    void HabilitarSalvarComo(bool habilitado) override;
    void PunteroDeEspera(bool espera) override;
    void PonerTapiz(const Tapiz& tapiz) override;
    void Repintar() override;
    void RecordarProyecto(const std::filesystem::path& archivo) override;
    void Cerrar() override;
    void MostrarDatosProyecto() override;
    void MostrarConfiguracion() override;
    void MostrarReparacion() override;
    void MostrarSobre() override;
    void MostrarEspacio(std::string_view clave) override;

    /// A project named in the program's argument.
    void AbrirProyecto(const std::filesystem::path& archivo) { operaciones_.AbrirDeFuera(archivo); }

  protected:
    // A project's file that is dropped on the window opens.
    void dragEnterEvent(QDragEnterEvent* evento) override;
    void dropEvent(QDropEvent* evento) override;

  private:
    /// The workspace of a command; null when the program has none.
    const Espacio* EspacioDe(std::string_view clave) const;
    void CrearAcciones();
    void CrearMenus();
    void CrearBarra();
    void LlenarRecientes();
    void CrearPanelEstado();

    Aplicacion& aplicacion_;
    Servicios servicios_;
    std::vector<Espacio> espacios_;
    MenuPrincipal operaciones_;
    AyudaF1 ayuda_;
    std::map<std::string_view, QAction*> acciones_;
    QMenu* recientes_;
    LienzoTapiz* tapiz_;
    QLabel* revision_;
    QLabel* proyecto_;
    PunteroDeTrabajo puntero_;
};

}  // namespace trabex::programa::qt
