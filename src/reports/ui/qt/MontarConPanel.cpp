#include "reports/ui/qt/MontarConPanel.h"

#include "reports/montaje/qt/SuperficieQt.h"
#include "reports/ui/qt/PanelProgresoQt.h"
#include "shell/qt/ComunVentanas.h"

namespace trabex::reportes::ui::qt {

void MontarConPanel(QWidget& ventana,
                    const std::function<void(montaje::SuperficieOculta&, montaje::PanelProgreso&)>& montar) {
    programa::qt::PunteroDeTrabajo puntero;
    puntero.Poner(true);
    montaje::qt::SuperficieQt superficie;
    PanelProgresoQt panel(&ventana);
    montar(superficie, panel);
    puntero.Poner(false);
}

}  // namespace trabex::reportes::ui::qt
