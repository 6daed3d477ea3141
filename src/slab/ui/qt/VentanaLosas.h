#pragma once

#include "shell/qt/VentanaEspacio.h"
#include "slab/ui/LectorDeLosa.h"

class QButtonGroup;

namespace trabex::losas::ui::qt {

/// What other parts of the program do with the workspace's slabs, by the command's key. A command without its
/// operation is disabled.
using OperacionesDeLosas = std::map<std::string_view, std::function<void(Losas& losas, QWidget& ventana)>>;

/// The slab workspace: the list of slabs, their commands, and the three sheets of the selected one.
class VentanaLosas : public programa::qt::VentanaEspacio, private PantallaLosas {
  public:
    VentanaLosas(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                 MemoriaLosas& memoria, const OperacionesDeLosas& otras, QWidget* padre);

    ~VentanaLosas() override;
    VentanaLosas(const VentanaLosas&) = delete;
    VentanaLosas& operator=(const VentanaLosas&) = delete;

    Losas& Operaciones() { return operaciones_; }

  private:
    void MarcarOpcionCarga(dibujo::losa::OpcionDeCarga opcion) override;
    void MarcarPorGrupos(bool porGrupos) override;
    bool MostrarLosaNueva() override;
    bool MostrarLosaSalvarComo() override;
    bool MostrarLosaDatos(const std::optional<dibujo::losa::Toque>& lugar) override;
    bool MostrarLosaGeneral() override;
    QWidget* OpcionesDeCarga();

    programa::Aplicacion& aplicacion_;
    programa::CajaMensajes& caja_;
    Losas operaciones_;
    LectorDeLosa lector_;
    QButtonGroup* opcionCarga_;
};

}  // namespace trabex::losas::ui::qt
