#include "helical/ui/qt/EspacioEscaleraH.h"

#include "helical/ui/qt/SalidasEscaleraH.h"
#include "helical/ui/qt/VentanaEscaleraH.h"

namespace trabex::helices::ui::qt {

programa::qt::Espacio EspacioEscaleraH(reportes::ui::qt::SalidaDelPrograma& salida) {
    return {
        "ID_EscaleraH",
        [&salida](programa::Aplicacion& aplicacion, const programa::Servicios& servicios, QWidget* padre) {
            SalidasEscaleraH salidas(aplicacion, servicios, salida);
            VentanaEscaleraH(aplicacion, servicios, salidas.Operaciones(), padre).exec();
        },
        "04-helices"};
}

}  // namespace trabex::helices::ui::qt
