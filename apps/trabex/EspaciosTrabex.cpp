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

EntornoReportes EntornoDe(const Aplicacion& aplicacion) {
    return {aplicacion.CaminoPrograma, aplicacion.CaminoUsuario, aplicacion.Usuario};
}

ProyectoParaReporte OrigenDe(Aplicacion& aplicacion, const Losas& losas) {
    return {aplicacion.Proyecto, aplicacion.Datos, aplicacion.Generales, losas.Fila()};
}

}  // namespace

EspaciosTrabex::EspaciosTrabex(Aplicacion& aplicacion, CajaMensajes& caja, DialogosArchivo& dialogos,
                               Plataforma& plataforma)
    : aplicacion_(aplicacion),
      caja_(caja),
      dialogos_(dialogos),
      plataforma_(plataforma),
      entorno_{aplicacion, salida_, motor_, impresoras_, caja, dialogos, plataforma} {
    motor_.Registrar(FormatoPdf, EscribirPdf);
}

void EspaciosTrabex::Mostrar(Espacio espacio, QWidget* padre) {
    if (espacio == Espacio::Losas) VentanaLosas(aplicacion_, caja_, dialogos_, Enchufes(), padre).exec();
}

EnchufesLosas EspaciosTrabex::Enchufes() {
    using Operacion = void (EspaciosTrabex::*)(Losas&, QWidget&);
    const auto propia = [this](Operacion operacion) {
        return [this, operacion](Losas& losas, QWidget& ventana) { (this->*operacion)(losas, ventana); };
    };
    return {
        {"ID_Exportar", propia(&EspaciosTrabex::ExportarResultados)},
        {"ID_Graficos", propia(&EspaciosTrabex::ExportarGraficos)},
        {"ID_Imprimir", propia(&EspaciosTrabex::ImprimirGraficos)},
        {"ID_ExportarG", propia(&EspaciosTrabex::ExportarImagen)},
        {"ID_Impresora", [this](Losas&, QWidget& ventana) { SeleccionarImpresoraTBX(entorno_, &ventana); }},
        {"ID_Planex",
         [this](Losas&, QWidget& ventana) {
             MostrarExportarCAD(aplicacion_, caja_, dialogos_, plataforma_, &ventana);
         }},
    };
}

void EspaciosTrabex::ExportarResultados(Losas& losas, QWidget& ventana) {
    VentanaOpcionImpreLosas opciones(reportes_, aplicacion_.Preferencias, &ventana);
    opciones.exec();
    if (!opciones.Aceptado()) return;
    LLeneResultados(EntornoDe(aplicacion_), OrigenDe(aplicacion_, losas), reportes_);
    salida_.ReporteActual = ReporteResultadosLosa;
    VentanaSalidaReporte(entorno_, VentanaSalidaReporte::Clase::Tabular, &ventana).exec();
}

void EspaciosTrabex::ExportarGraficos(Losas& losas, QWidget& ventana) {
    VentanaOpcionGrafico opciones(OpcionGraficoE, reportes_, aplicacion_.Preferencias, &ventana);
    if (opciones.exec() != QDialog::Accepted) return;
    SuperficieQt superficie;
    PanelProgresoQt panel(&ventana);
    GuardeGraficos(EntornoDe(aplicacion_), OrigenDe(aplicacion_, losas), losas.Estado().Hoja, superficie,
                   panel, reportes_);
    salida_.GraficoHelicoidal = false;
    salida_.GraficoAutoportante = false;
    VentanaSalidaReporte(entorno_, VentanaSalidaReporte::Clase::Grafico, &ventana).exec();
}

void EspaciosTrabex::ImprimirGraficos(Losas& losas, QWidget& ventana) {
    VentanaOpcionGrafico opciones(OpcionGraficoE1, reportes_, aplicacion_.Preferencias, &ventana);
    if (opciones.exec() != QDialog::Accepted) return;
    PedirEImprimirGraficosLosas(entorno_, OrigenDe(aplicacion_, losas), losas.Estado().Hoja, reportes_,
                                &ventana);
}

/// The window's zoom is its own: the workspace's comes back by itself.
void EspaciosTrabex::ExportarImagen(Losas& losas, QWidget& ventana) {
    HojaLosa hoja = losas.Estado().Hoja;
    const auto dibujar = [&](Lienzo& lienzo, EstadoVista& vista) {
        hoja.Vista = vista;
        RedibujeVista(lienzo, hoja, losas.Calculada());
        vista = hoja.Vista;
    };
    VentanaExportarGrafico({aplicacion_, reportes_, caja_, dialogos_, plataforma_}, dibujar, &ventana).exec();
}

}  // namespace trabex
