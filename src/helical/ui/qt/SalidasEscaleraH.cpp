#include "helical/ui/qt/SalidasEscaleraH.h"

#include <QAction>

#include "drawing/helice/GraficoHelice.h"
#include "helical/salida/GraficosEscalerasH.h"
#include "helical/salida/PanelesEscaleraH.h"
#include "reports/ui/qt/ImprimirDibujos.h"
#include "reports/ui/qt/MontarConPanel.h"
#include "reports/ui/qt/VentanaExportarGrafico.h"
#include "reports/ui/qt/VentanaSalidaReporte.h"
#include "reports/ui/qt/VistaDeTablas.h"

namespace trabex::helices::ui::qt {

namespace {

constexpr std::int16_t ReporteEscaleraH = 2;

using reportes::ui::qt::VentanaSalidaReporte;

}  // namespace

OperacionesDeHelices SalidasEscaleraH::Operaciones() {
    const auto propia = [this](void (SalidasEscaleraH::*operacion)(EscaleraH&, VentanaEscaleraH&)) {
        return [this, operacion](EscaleraH& escaleras, VentanaEscaleraH& ventana) {
            if (escaleras.Lista().Vacia()) return;
            if (const auto& fallo = escaleras.Estado().Fallo)
                return reportes::ui::ExportadorReportes(entorno_).Avisar(*fallo);
            (this->*operacion)(escaleras, ventana);
        };
    };
    return {{"ID_Graficos", propia(&SalidasEscaleraH::ExportarGrafico)},
            {"ID_Exportar", propia(&SalidasEscaleraH::ExportarTablas)},
            {"ID_ImprimirP", propia(&SalidasEscaleraH::ImprimirPaneles)},
            {"ID_Imprimir", propia(&SalidasEscaleraH::ImprimirGrafico)},
            {"ID_ExportarG", propia(&SalidasEscaleraH::ExportarImagen)}};
}

/// The drawing of the report is the whole stair, so that of the screen becomes so too.
void SalidasEscaleraH::ExportarGrafico(EscaleraH& escaleras, VentanaEscaleraH& ventana) {
    const dibujo::helice::HojaHelice& hoja = escaleras.Estado().Hoja;
    if (hoja.Vista.Zoom != 1 || hoja.Vista.PanX != 0 || hoja.Vista.PanY != 0)
        ventana.Accion("ID_ZoomExtents")->trigger();
    const auto montar = [&](auto& superficie, auto& panel) {
        salida::GuardeGraficos(entorno_.Montaje(), aplicacion_.Datos, escaleras.Calculada(), hoja, superficie,
                               panel);
    };
    if (!reportes::ui::qt::MontarConPanel(ventana, montar)) return;
    salida_.Estado.GraficoHelicoidal = true;
    salida_.Estado.GraficoAutoportante = false;
    VentanaSalidaReporte(entorno_, VentanaSalidaReporte::Clase::Grafico, &ventana).exec();
    escaleras.Releer();
}

void SalidasEscaleraH::ExportarTablas(EscaleraH& escaleras, VentanaEscaleraH& ventana) {
    salida::LLenarDatos(entorno_.Montaje(), aplicacion_.Datos, escaleras.Calculada());
    salida_.Estado.ReporteActual = ReporteEscaleraH;
    VentanaSalidaReporte(entorno_, VentanaSalidaReporte::Clase::Tabular, &ventana).exec();
    escaleras.Releer();
}

void SalidasEscaleraH::ImprimirPaneles(EscaleraH& escaleras, VentanaEscaleraH& ventana) {
    const EscaleraHCalculada& escalera = escaleras.Calculada();
    reportes::ui::qt::ImprimirPantallaActual(
        entorno_, {salida::ColoqueSolicitaciones(escalera), salida::ColoqueDiseno(escalera)},
        salida::TituloReporteH, &ventana);
}

void SalidasEscaleraH::ImprimirGrafico(EscaleraH& escaleras, VentanaEscaleraH& ventana) {
    reportes::ui::qt::PedirEImprimirDibujos(
        entorno_, ventana, [&](dibujo::qt::PapelQt& papel, const Avance&) {
            papel.Pagina([&](dibujo::Lienzo& pagina) {
                dibujo::helice::DibujeEnPapel(
                    pagina, escaleras.Estado().Hoja, escaleras.Calculada(),
                    {aplicacion_.Usuario, aplicacion_.Datos.Proyecto, aplicacion_.Datos.Calculista});
            });
        });
}

void SalidasEscaleraH::ExportarImagen(EscaleraH& escaleras, VentanaEscaleraH& ventana) {
    reportes::ui::qt::VentanaExportarGrafico(
        {aplicacion_, salida_.Opciones, entorno_.Servicios},
        reportes::ui::qt::DibujoDeHoja(escaleras.Estado().Hoja,
                                       [&](dibujo::Lienzo& lienzo, dibujo::helice::HojaHelice& hoja) {
                                           dibujo::helice::RedibujeVista(lienzo, hoja, escaleras.Calculada(),
                                                                         dibujo::helice::HeliceEnImagen);
                                       }),
        &ventana)
        .exec();
}

}  // namespace trabex::helices::ui::qt
