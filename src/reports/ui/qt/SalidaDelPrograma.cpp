#include "reports/ui/qt/SalidaDelPrograma.h"

#include <QApplication>

#include "reports/salidas/qt/EscritorPdf.h"
#include "reports/ui/qt/PanelProgresoQt.h"

namespace trabex::reportes::ui::qt {

SalidaDelPrograma::SalidaDelPrograma() {
    Motor.Registrar(salidas::FormatoPdf, salidas::qt::EscribirPdf);
}

EntornoSalida SalidaDelPrograma::Entorno(programa::Aplicacion& aplicacion,
                                         const programa::Servicios& servicios) {
    return {aplicacion, Estado,
            Motor,      Impresoras,
            servicios,  [] { return std::make_unique<PanelProgresoQt>(QApplication::activeWindow()); }};
}

}  // namespace trabex::reportes::ui::qt
