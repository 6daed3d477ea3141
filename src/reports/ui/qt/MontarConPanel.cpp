#include "reports/ui/qt/MontarConPanel.h"

#include "base/AlSalir.h"
#include "base/Avance.h"
#include "reports/montaje/qt/SuperficieQt.h"
#include "reports/ui/qt/PanelProgresoQt.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::reportes::ui::qt {

bool MontarConPanel(QWidget& ventana,
                    const std::function<void(montaje::SuperficieOculta&, montaje::PanelProgreso&)>& montar) {
    programa::qt::PunteroDeTrabajo puntero;
    puntero.Poner(true);
    montaje::qt::SuperficieQt superficie;
    PanelProgresoQt panel(&ventana);
    const AlSalir soltar([&puntero] { puntero.Poner(false); });
    try {
        montar(superficie, panel);
    } catch (const TrabajoCancelado&) {
        return false;
    }
    return true;
}

}  // namespace trabex::reportes::ui::qt
