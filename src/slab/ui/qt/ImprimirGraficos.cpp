#include "slab/ui/qt/ImprimirGraficos.h"

#include <QPrintDialog>
#include <QPrinter>

#include "base/Edicion.h"
#include "drawing/losa/GraficoLosasPrinter.h"
#include "drawing/qt/PapelQt.h"
#include "reports/ui/qt/ImpresorasQt.h"
#include "shell/qt/ComunVentanas.h"
#include "slab/salida/GraficosLosas.h"

namespace trabex::losas::ui::qt {

void ImprimirGraficosLosas(QPrinter& impresora, const losas::salida::ProyectoParaReporte& origen,
                           const dibujo::losa::HojaLosa& pantalla, const std::string& usuario,
                           const montaje::EstadoReportes& estado) {
    const losas::salida::PedidoDeGraficos pedido = losas::salida::PedidoDe(estado.OpcionGrafico);
    const dibujo::DatosDePagina pagina{usuario, origen.Datos.Proyecto, origen.Datos.Calculista};
    dibujo::losa::HojaLosa hoja = pantalla;
    if (pedido.Todas) hoja.Vista = {};
    impresora.setResolution(dibujo::qt::UnidadesPorPulgadaDePapel);
    dibujo::qt::PapelQt papel(impresora);
    losas::salida::RecorrerLosas(origen, pedido.Todas, [&](const losas::salida::LosaDelProyecto& losa) {
        for (const losas::salida::DibujoDeLosa& dibujo : pedido.Dibujos) {
            hoja.VistaActual = dibujo.Vista;
            hoja.SoloReacciones = dibujo.SoloReacciones;
            papel.Pagina([&](dibujo::Lienzo& lienzo) {
                dibujo::losa::GuardeGraficos1(lienzo, hoja, {losa.Datos, losa.Generales, losa.Resultados},
                                              pagina);
            });
        }
    });
    papel.Terminar();
}

void PedirEImprimirGraficosLosas(reportes::ui::EntornoSalida& entorno,
                                 const losas::salida::ProyectoParaReporte& origen,
                                 const dibujo::losa::HojaLosa& pantalla,
                                 const montaje::EstadoReportes& estado, QWidget* padre) {
    reportes::ui::ExportadorReportes exportador(entorno);
    if (!exportador.HayImpresoras()) return;
    QPrinter impresora(QPrinter::HighResolution);
    if (!entorno.Estado.Impresora.empty())
        impresora.setPrinterName(programa::qt::Q(entorno.Estado.Impresora));
    impresora.setDocName(ProgramaYEdicion);
    QPrintDialog dialogo(&impresora, padre);
    if (dialogo.exec() != QDialog::Accepted) return;
    programa::qt::PunteroDeTrabajo puntero;
    puntero.Poner(true);
    try {
        ImprimirGraficosLosas(impresora, origen, pantalla, entorno.LaAplicacion.Usuario, estado);
        puntero.Poner(false);
    } catch (const ErrorEjecucion& error) {
        puntero.Poner(false);
        exportador.Avisar(error);
    }
}

}  // namespace trabex::losas::ui::qt
