#include "reports/ui/qt/SalidaDelPrograma.h"

#include "reports/salidas/qt/EscritorPdf.h"

namespace trabex::reportes::ui::qt {

SalidaDelPrograma::SalidaDelPrograma() {
    Motor.Registrar(salidas::FormatoPdf, salidas::qt::EscribirPdf);
}

EntornoSalida SalidaDelPrograma::Entorno(programa::Aplicacion& aplicacion,
                                         const programa::Servicios& servicios) {
    return {aplicacion, Estado, Motor, Impresoras, servicios};
}

}  // namespace trabex::reportes::ui::qt
