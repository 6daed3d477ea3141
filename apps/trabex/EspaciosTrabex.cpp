#include "EspaciosTrabex.h"

#include "reports/montaje/qt/SuperficieQt.h"
#include "reports/planex/ui/qt/VentanaExportarCAD.h"
#include "reports/salidas/qt/EscritorPdf.h"
#include "reports/ui/qt/PanelProgresoQt.h"
#include "reports/ui/qt/VentanaExportarGrafico.h"
#include "reports/ui/qt/VentanaOpcionesReporte.h"
#include "reports/ui/qt/VentanaSalidaReporte.h"
#include "reports/ui/qt/VentanaSeleccionarImpresora.h"
#include "slab/salida/GraficosLosas.h"
#include "slab/ui/qt/ImprimirGraficos.h"

namespace trabex {

namespace {

constexpr std::int16_t ReporteResultadosLosa = 4;

montaje::EntornoReportes EntornoDe(const programa::Aplicacion& aplicacion) {
    return {aplicacion.CaminoPrograma, aplicacion.CaminoUsuario, aplicacion.Usuario};
}

losas::salida::ProyectoParaReporte OrigenDe(programa::Aplicacion& aplicacion, losas::ui::Losas& losas) {
    return {aplicacion.Proyecto, aplicacion.Datos, aplicacion.Generales, losas.Lista().Fila()};
}

}  // namespace

EspaciosTrabex::EspaciosTrabex(programa::Aplicacion& aplicacion, programa::CajaMensajes& caja,
                               programa::DialogosArchivo& dialogos, programa::Plataforma& plataforma)
    : aplicacion_(aplicacion),
      caja_(caja),
      dialogos_(dialogos),
      plataforma_(plataforma),
      entorno_{aplicacion, salida_, motor_, impresoras_, caja, dialogos, plataforma} {
    motor_.Registrar(salidas::FormatoPdf, salidas::qt::EscribirPdf);
}

void EspaciosTrabex::Mostrar(programa::Espacio espacio, QWidget* padre) {
    if (espacio == programa::Espacio::Losas)
        losas::ui::qt::VentanaLosas(aplicacion_, {caja_, dialogos_, plataforma_}, losas_, Operaciones(),
                                    padre)
            .exec();
}

losas::ui::qt::OperacionesDeLosas EspaciosTrabex::Operaciones() {
    using Operacion = void (EspaciosTrabex::*)(losas::ui::Losas&, QWidget&);
    const auto propia = [this](Operacion operacion) {
        return [this, operacion](losas::ui::Losas& losas, QWidget& ventana) {
            (this->*operacion)(losas, ventana);
        };
    };
    return {
        {"ID_Exportar", propia(&EspaciosTrabex::ExportarResultados)},
        {"ID_Graficos", propia(&EspaciosTrabex::ExportarGraficos)},
        {"ID_Imprimir", propia(&EspaciosTrabex::ImprimirGraficos)},
        {"ID_ExportarG", propia(&EspaciosTrabex::ExportarImagen)},
        {"ID_Impresora",
         [this](losas::ui::Losas&, QWidget& ventana) {
             reportes::ui::qt::SeleccionarImpresoraTBX(entorno_, &ventana);
         }},
        {"ID_Planex",
         [this](losas::ui::Losas&, QWidget& ventana) {
             planex::ui::qt::MostrarExportarCAD(aplicacion_, caja_, dialogos_, plataforma_, &ventana);
         }},
    };
}

void EspaciosTrabex::ExportarResultados(losas::ui::Losas& losas, QWidget& ventana) {
    reportes::ui::qt::VentanaOpcionImpreLosas opciones(reportes_, aplicacion_.Preferencias, &ventana);
    opciones.exec();
    if (!opciones.Aceptado()) return;
    losas::salida::LLeneResultados(EntornoDe(aplicacion_), OrigenDe(aplicacion_, losas), reportes_);
    salida_.ReporteActual = ReporteResultadosLosa;
    reportes::ui::qt::VentanaSalidaReporte(entorno_, reportes::ui::qt::VentanaSalidaReporte::Clase::Tabular,
                                           &ventana)
        .exec();
}

void EspaciosTrabex::ExportarGraficos(losas::ui::Losas& losas, QWidget& ventana) {
    reportes::ui::qt::VentanaOpcionGrafico opciones(reportes::ui::OpcionGraficoE, reportes_,
                                                    aplicacion_.Preferencias, &ventana);
    if (opciones.exec() != QDialog::Accepted) return;
    montaje::qt::SuperficieQt superficie;
    reportes::ui::qt::PanelProgresoQt panel(&ventana);
    losas::salida::GuardeGraficos(EntornoDe(aplicacion_), OrigenDe(aplicacion_, losas), losas.Estado().Hoja,
                                  superficie, panel, reportes_);
    salida_.GraficoHelicoidal = false;
    salida_.GraficoAutoportante = false;
    reportes::ui::qt::VentanaSalidaReporte(entorno_, reportes::ui::qt::VentanaSalidaReporte::Clase::Grafico,
                                           &ventana)
        .exec();
}

void EspaciosTrabex::ImprimirGraficos(losas::ui::Losas& losas, QWidget& ventana) {
    reportes::ui::qt::VentanaOpcionGrafico opciones(reportes::ui::OpcionGraficoE1, reportes_,
                                                    aplicacion_.Preferencias, &ventana);
    if (opciones.exec() != QDialog::Accepted) return;
    losas::ui::qt::PedirEImprimirGraficosLosas(entorno_, OrigenDe(aplicacion_, losas), losas.Estado().Hoja,
                                               reportes_, &ventana);
}

/// The window's zoom is its own: the workspace's comes back by itself.
void EspaciosTrabex::ExportarImagen(losas::ui::Losas& losas, QWidget& ventana) {
    dibujo::losa::HojaLosa hoja = losas.Estado().Hoja;
    const auto dibujar = [&](dibujo::Lienzo& lienzo, dibujo::EstadoVista& vista) {
        hoja.Vista = vista;
        dibujo::losa::RedibujeVista(lienzo, hoja, losas.Calculada());
        vista = hoja.Vista;
    };
    reportes::ui::qt::VentanaExportarGrafico({aplicacion_, reportes_, caja_, dialogos_, plataforma_}, dibujar,
                                             &ventana)
        .exec();
}

}  // namespace trabex
