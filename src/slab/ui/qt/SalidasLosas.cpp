#include "slab/ui/qt/SalidasLosas.h"

#include "reports/planex/ui/qt/VentanaExportarCAD.h"
#include "reports/ui/qt/ImprimirDibujos.h"
#include "reports/ui/qt/MontarConPanel.h"
#include "reports/ui/qt/VentanaExportarGrafico.h"
#include "reports/ui/qt/VentanaOpcionesReporte.h"
#include "reports/ui/qt/VentanaSalidaReporte.h"
#include "reports/ui/qt/VentanaSeleccionarImpresora.h"
#include "slab/salida/GraficosLosas.h"
#include "slab/ui/qt/ImprimirGraficos.h"

namespace trabex::losas::ui::qt {

namespace {

constexpr std::int16_t ReporteResultadosLosa = 4;

salida::ProyectoParaReporte OrigenDe(programa::Aplicacion& aplicacion, Losas& losas) {
    return {aplicacion.Proyecto, aplicacion.Datos, aplicacion.Generales, losas.Lista().Fila()};
}

}  // namespace

SalidasLosas::SalidasLosas(programa::Aplicacion& aplicacion, const programa::Servicios& servicios,
                           reportes::ui::qt::SalidaDelPrograma& salida)
    : aplicacion_(aplicacion), salida_(salida), entorno_(salida.Entorno(aplicacion, servicios)) {}

OperacionesDeLosas SalidasLosas::Operaciones() {
    const auto propia = [this](void (SalidasLosas::*operacion)(Losas&, QWidget&)) {
        return [this, operacion](Losas& losas, QWidget& ventana) { (this->*operacion)(losas, ventana); };
    };
    return {
        {"ID_Exportar", propia(&SalidasLosas::ExportarResultados)},
        {"ID_Graficos", propia(&SalidasLosas::ExportarGraficos)},
        {"ID_Imprimir", propia(&SalidasLosas::ImprimirGraficos)},
        {"ID_ExportarG", propia(&SalidasLosas::ExportarImagen)},
        {"ID_Impresora", propia(&SalidasLosas::CambiarImpresora)},
        {"ID_Planex", propia(&SalidasLosas::ExportarCAD)},
    };
}

void SalidasLosas::CambiarImpresora(Losas& /*losas*/, QWidget& ventana) {
    reportes::ui::qt::SeleccionarImpresoraTBX(entorno_, &ventana);
}

void SalidasLosas::ExportarCAD(Losas& /*losas*/, QWidget& ventana) {
    planex::ui::qt::MostrarExportarCAD(aplicacion_, entorno_.Servicios, &ventana);
}

void SalidasLosas::ExportarResultados(Losas& losas, QWidget& ventana) {
    reportes::ui::qt::VentanaOpcionImpreLosas opciones(salida_.Opciones, aplicacion_.Preferencias, &ventana);
    opciones.exec();
    if (!opciones.Aceptado()) return;
    const auto montar = [&](const Avance& avance) {
        salida::LLeneResultados(entorno_.Montaje(), OrigenDe(aplicacion_, losas), salida_.Opciones, avance);
    };
    if (!reportes::ui::ExportadorReportes(entorno_).ConPanel("Calculando las Losas", montar)) return;
    salida_.Estado.ReporteActual = ReporteResultadosLosa;
    reportes::ui::qt::VentanaSalidaReporte(entorno_, reportes::ui::qt::VentanaSalidaReporte::Clase::Tabular,
                                           &ventana)
        .exec();
}

void SalidasLosas::ExportarGraficos(Losas& losas, QWidget& ventana) {
    reportes::ui::qt::VentanaOpcionGrafico opciones(reportes::ui::OpcionGraficoE, salida_.Opciones,
                                                    aplicacion_.Preferencias, &ventana);
    if (opciones.exec() != QDialog::Accepted) return;
    const auto montar = [&](auto& superficie, auto& panel) {
        salida::GuardeGraficos(entorno_.Montaje(), OrigenDe(aplicacion_, losas), losas.Estado().Hoja,
                               superficie, panel, salida_.Opciones);
    };
    if (!reportes::ui::qt::MontarConPanel(ventana, montar)) return;
    salida_.Estado.GraficoHelicoidal = false;
    salida_.Estado.GraficoAutoportante = false;
    reportes::ui::qt::VentanaSalidaReporte(entorno_, reportes::ui::qt::VentanaSalidaReporte::Clase::Grafico,
                                           &ventana)
        .exec();
}

void SalidasLosas::ImprimirGraficos(Losas& losas, QWidget& ventana) {
    reportes::ui::qt::VentanaOpcionGrafico opciones(reportes::ui::OpcionGraficoE1, salida_.Opciones,
                                                    aplicacion_.Preferencias, &ventana);
    if (opciones.exec() != QDialog::Accepted) return;
    const auto dibujar = [&](dibujo::qt::PapelQt& papel, const Avance& avance) {
        DibujarGraficosLosas(papel, OrigenDe(aplicacion_, losas), losas.Estado().Hoja, aplicacion_.Usuario,
                             salida_.Opciones, avance);
    };
    reportes::ui::qt::PedirEImprimirDibujos(entorno_, ventana, dibujar);
}

/// The window's zoom is its own: the workspace's comes back by itself.
void SalidasLosas::ExportarImagen(Losas& losas, QWidget& ventana) {
    reportes::ui::qt::VentanaExportarGrafico(
        {aplicacion_, salida_.Opciones, entorno_.Servicios},
        reportes::ui::qt::DibujoDeHoja(losas.Estado().Hoja,
                                       [&](dibujo::Lienzo& lienzo, dibujo::losa::HojaLosa& hoja) {
                                           dibujo::losa::RedibujeVista(lienzo, hoja, losas.Calculada());
                                       }),
        &ventana)
        .exec();
}

}  // namespace trabex::losas::ui::qt
