#include "slab/ui/qt/ImprimirGraficos.h"

#include "drawing/losa/GraficoLosasPrinter.h"
#include "slab/salida/GraficosLosas.h"

namespace trabex::losas::ui::qt {

void DibujarGraficosLosas(dibujo::qt::PapelQt& papel, const losas::salida::ProyectoParaReporte& origen,
                          const dibujo::losa::HojaLosa& pantalla, const std::string& usuario,
                          const montaje::EstadoReportes& estado, const Avance& avance) {
    const losas::salida::PedidoDeGraficos pedido = losas::salida::PedidoDe(estado.OpcionGrafico);
    const dibujo::DatosDePagina pagina{usuario, origen.Datos.Proyecto, origen.Datos.Calculista};
    dibujo::losa::HojaLosa hoja = pantalla;
    if (pedido.Todas) hoja.Vista = {};
    const int losas = pedido.Todas ? origen.Proyecto.RegistrosProyecto.NumeroRegistros() : 1;
    const std::size_t total = pedido.Dibujos.size() * static_cast<std::size_t>(losas);
    std::size_t hechos = 0;
    losas::salida::RecorrerLosas(origen, pedido.Todas, [&](const losas::salida::LosaDelProyecto& losa) {
        for (const losas::salida::DibujoDeLosa& dibujo : pedido.Dibujos) {
            Avisar(avance, hechos++, total);
            hoja.VistaActual = dibujo.Vista;
            hoja.SoloReacciones = dibujo.SoloReacciones;
            papel.Pagina([&](dibujo::Lienzo& lienzo) {
                dibujo::losa::GuardeGraficos1(lienzo, hoja, {losa.Datos, losa.Generales, losa.Resultados},
                                              pagina);
            });
        }
    });
}

}  // namespace trabex::losas::ui::qt
