#include "stairs/ui/qt/SalidasEscaleraT.h"

#include <QAction>

#include "reports/ui/qt/MontarConPanel.h"
#include "reports/ui/qt/VentanaExportarGrafico.h"
#include "reports/ui/qt/VentanaOpcionesReporte.h"
#include "reports/ui/qt/VentanaSalidaReporte.h"
#include "stairs/salida/GraficosEscaleras.h"

namespace trabex::escaleras::ui::qt {

OperacionesDeEscaleras SalidasEscaleraT::Operaciones() {
    const auto propia = [this](void (SalidasEscaleraT::*operacion)(EscaleraT&, VentanaEscaleraT&)) {
        return [this, operacion](EscaleraT& escaleras, VentanaEscaleraT& ventana) {
            (this->*operacion)(escaleras, ventana);
        };
    };
    return {{"ID_Exportar", propia(&SalidasEscaleraT::ExportarGraficos)},
            {"ID_ExportarG", propia(&SalidasEscaleraT::ExportarImagen)}};
}

void SalidasEscaleraT::ExportarGraficos(EscaleraT& escaleras, VentanaEscaleraT& ventana) {
    if (escaleras.Lista().Vacia()) return;
    const dibujo::EstadoVista& vista = escaleras.Estado().Hoja.Vista;
    if (vista.Zoom != 1 || vista.PanX != 0 || vista.PanY != 0) ventana.Accion("ID_ZoomExtents")->trigger();
    reportes::ui::qt::VentanaOpcionGrafico opciones(reportes::ui::OpcionGraficoET, salida_.Opciones,
                                                    aplicacion_.Preferencias, &ventana);
    if (opciones.exec() != QDialog::Accepted) return;
    const auto montar = [&](auto& superficie, auto& panel) {
        salida::GuardeGraficos(entorno_.Montaje(),
                               {aplicacion_.Proyecto, aplicacion_.Datos, escaleras.Calculada()},
                               aplicacion_.SeparadoresLocales, superficie, panel, salida_.Opciones);
    };
    if (!reportes::ui::qt::MontarConPanel(ventana, montar)) return;
    salida_.Estado.GraficoHelicoidal = false;
    salida_.Estado.GraficoAutoportante = true;
    salida_.Estado.Papel = salida_.Opciones.Papel;
    reportes::ui::qt::VentanaSalidaReporte(entorno_, reportes::ui::qt::VentanaSalidaReporte::Clase::Grafico,
                                           &ventana)
        .exec();
}

/// The window's zoom is its own: the workspace's comes back by itself.
void SalidasEscaleraT::ExportarImagen(EscaleraT& escaleras, VentanaEscaleraT& ventana) {
    reportes::ui::qt::VentanaExportarGrafico(
        {aplicacion_, salida_.Opciones, entorno_.Servicios},
        reportes::ui::qt::DibujoDeHoja(escaleras.Estado().Hoja,
                                       [&](dibujo::Lienzo& lienzo, dibujo::escalera::HojaEscalera& hoja) {
                                           dibujo::escalera::RedibujeVista(lienzo, hoja,
                                                                           escaleras.Calculada());
                                       }),
        &ventana)
        .exec();
}

}  // namespace trabex::escaleras::ui::qt
