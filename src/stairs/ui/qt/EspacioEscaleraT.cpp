#include "stairs/ui/qt/EspacioEscaleraT.h"

#include "stairs/ui/qt/SalidasEscaleraT.h"
#include "stairs/ui/qt/VentanaEscaleraT.h"

namespace trabex::escaleras::ui::qt {

programa::qt::Espacio EspacioEscaleraT(reportes::ui::qt::SalidaDelPrograma& salida) {
    return {
        "ID_Tijera",
        [&salida](programa::Aplicacion& aplicacion, const programa::Servicios& servicios, QWidget* padre) {
            SalidasEscaleraT salidas(aplicacion, servicios, salida);
            VentanaEscaleraT(aplicacion, servicios, salidas.Operaciones(), padre).exec();
        },
        "03-escaleras"};
}

}  // namespace trabex::escaleras::ui::qt
