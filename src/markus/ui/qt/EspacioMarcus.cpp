#include "markus/ui/qt/EspacioMarcus.h"

#include <QTableView>

#include "markus/salida/ReporteMarcus.h"
#include "markus/ui/qt/VentanaMarcus.h"
#include "reports/ui/qt/VentanaSalidaReporte.h"
#include "reports/ui/qt/VistaDeTablas.h"

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
            const auto pantalla = [&](const QTableView& panos, const std::string& nivel, QWidget& ventana) {
                reportes::ui::qt::ImprimirPantallaActual(entorno, {{&panos, QString::fromStdString(nivel)}},
                                                         salida::TituloReporteMarcus, &ventana);
            };
            VentanaMarcus(aplicacion, servicios, {reporte, pantalla}, padre).exec();
        },
        "05-markus"};
}

}  // namespace trabex::marcus::ui::qt
