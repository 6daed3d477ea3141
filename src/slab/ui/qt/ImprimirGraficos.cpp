#include "slab/ui/qt/ImprimirGraficos.h"

#include <QPrintDialog>
#include <QPrinter>

#include "drawing/losa/GraficoLosasPrinter.h"
#include "drawing/qt/PapelQt.h"
#include "reports/ui/qt/ImpresorasQt.h"
#include "shell/qt/ComunVentanas.h"
#include "slab/salida/GraficosLosas.h"

namespace trabex {

void ImprimirGraficosLosas(QPrinter& impresora, const ProyectoParaReporte& origen, const HojaLosa& pantalla,
                           const std::string& usuario, EstadoReportes& estado) {
    const BanderaEnAlto generando(estado.GenerandoReporte);
    const PedidoDeGraficos pedido = PedidoDe(estado.OpcionGrafico);
    const DatosDePagina pagina{usuario, origen.Datos.Proyecto, origen.Datos.Calculista};
    HojaLosa hoja = pantalla;
    if (pedido.Todas) hoja.Vista = {};
    impresora.setResolution(UnidadesPorPulgadaDePapel);
    PapelQt papel(impresora);
    RecorrerLosas(origen, pedido.Todas, [&](const LosaDelProyecto& losa) {
        for (const DibujoDeLosa& dibujo : pedido.Dibujos) {
            hoja.VistaActual = dibujo.Vista;
            hoja.SoloReacciones = dibujo.SoloReacciones;
            papel.Pagina([&](Lienzo& lienzo) {
                GuardeGraficos1(lienzo, hoja, {losa.Datos, losa.Generales, losa.Resultados}, pagina);
            });
        }
    });
    papel.Terminar();
}

void PedirEImprimirGraficosLosas(EntornoSalida& entorno, const ProyectoParaReporte& origen,
                                 const HojaLosa& pantalla, EstadoReportes& estado, QWidget* padre) {
    ExportadorReportes exportador(entorno);
    if (!exportador.HayImpresoras()) return;
    QPrinter impresora(QPrinter::HighResolution);
    if (!entorno.Estado.Impresora.empty()) impresora.setPrinterName(Q(entorno.Estado.Impresora));
    impresora.setDocName("Trabex 2024");
    QPrintDialog dialogo(&impresora, padre);
    if (dialogo.exec() != QDialog::Accepted) return;
    PunteroDeTrabajo puntero;
    puntero.Poner(true);
    try {
        ImprimirGraficosLosas(impresora, origen, pantalla, entorno.LaAplicacion.Usuario, estado);
        puntero.Poner(false);
    } catch (const ErrorEjecucion& error) {
        puntero.Poner(false);
        exportador.Avisar(error);
    }
}

}  // namespace trabex
