#include "slab/ui/qt/EspacioLosas.h"

#include "slab/ui/qt/SalidasLosas.h"

namespace trabex::losas::ui::qt {

programa::qt::Espacio EspacioLosas(reportes::ui::qt::SalidaDelPrograma& salida) {
    return {
        "ID_LosasD",
        [&salida, memoria = MemoriaLosas{}](programa::Aplicacion& aplicacion,
                                            const programa::Servicios& servicios, QWidget* padre) mutable {
            SalidasLosas salidas(aplicacion, servicios, salida);
            VentanaLosas(aplicacion, servicios, memoria, salidas.Operaciones(), padre).exec();
        },
        "02-losas"};
}

}  // namespace trabex::losas::ui::qt
