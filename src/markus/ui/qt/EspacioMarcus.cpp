#include "markus/ui/qt/EspacioMarcus.h"

#include "markus/ui/qt/VentanaMarcus.h"
#include "reports/ui/qt/VentanaSalidaReporte.h"

namespace trabex::marcus::ui::qt {

namespace {

constexpr std::int16_t ReporteMarcus = 1;

}  // namespace

programa::qt::Espacio EspacioMarcus(reportes::ui::qt::SalidaDelPrograma& salida) {
    return {
        "ID_Marcus",
        [&salida](programa::Aplicacion& aplicacion, const programa::Servicios& servicios, QWidget* padre) {
            reportes::ui::EntornoSalida entorno = salida.Entorno(aplicacion, servicios);
            const auto reporte = [&](QWidget& ventana) {
                using reportes::ui::qt::VentanaSalidaReporte;
                salida.Estado.ReporteActual = ReporteMarcus;
                VentanaSalidaReporte(entorno, VentanaSalidaReporte::Clase::Tabular, &ventana).exec();
            };
            VentanaMarcus(aplicacion, servicios, reporte, padre).exec();
        },
        "05-markus"};
}

}  // namespace trabex::marcus::ui::qt
