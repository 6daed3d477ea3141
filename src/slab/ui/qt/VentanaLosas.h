#pragma once

#include <QDialog>
#include <functional>
#include <map>
#include <string_view>

#include "slab/ui/ComandosLosas.h"
#include "slab/ui/Losas.h"

class QAction;
class QButtonGroup;
class QLabel;
class QListWidget;
class QMenu;
class QTabBar;

namespace trabex::dibujo::qt {
class WidgetLienzo;
}

namespace trabex::losas::ui::qt {

/// What other parts of the program do with the workspace's slabs, by the command's key. A command without its
/// operation is disabled.
using EnchufesLosas = std::map<std::string_view, std::function<void(Losas& losas, QWidget& ventana)>>;

/// The slab workspace: the list of slabs, their commands, and the three sheets of the selected one.
class VentanaLosas : public QDialog, public VistaLosas {
  public:
    VentanaLosas(programa::Aplicacion& aplicacion, programa::CajaMensajes& caja,
                 programa::DialogosArchivo& dialogos, const EnchufesLosas& enchufes, QWidget* padre);
    ~VentanaLosas() override;

    QAction* Accion(std::string_view clave) const { return acciones_.at(clave); }
    Losas& Operaciones() { return operaciones_; }

    void PonerTitulo(const std::string& titulo) override;
    void PonerEstado(const std::string& texto) override;
    void PonerEncabezado(const std::string& texto) override;
    void LlenarLista(const std::vector<std::string>& nombres) override;
    void AgregarFila(const std::string& nombre) override;
    void QuitarFila(int fila) override;
    void MarcarFila(int fila) override;
    void RestablecerVista() override;
    void Redibujar() override;
    void MostrarLosaNueva() override;
    void MostrarLosaSalvarComo() override;
    void MostrarLosaDatos() override;
    void MostrarLosaGeneral() override;
    std::string MostrarRenombrar(const std::string& actual) override;

  protected:
    /// Escape belongs to the drawing; the window closes by " Retorno " or its cross.
    void keyPressEvent(QKeyEvent* evento) override;

  private:
    void CrearAcciones(const EnchufesLosas& enchufes);
    void Conectar(std::string_view clave, const EnchufesLosas& enchufes);
    QWidget* Barra();
    QWidget* PanelDeLista();
    QWidget* PanelDeHojas();
    QWidget* OpcionesDeCarga();
    void CrearMenus();
    void AtajosDeLista();
    void HabilitarComandos();

    programa::Aplicacion& aplicacion_;
    programa::CajaMensajes& caja_;
    Losas operaciones_;
    std::map<std::string_view, QAction*> acciones_;
    QListWidget* lista_;
    QLabel* encabezado_;
    QLabel* pie_;
    QTabBar* hojas_;
    QButtonGroup* opcionCarga_;
    dibujo::qt::WidgetLienzo* lienzo_;
};

}  // namespace trabex::losas::ui::qt
