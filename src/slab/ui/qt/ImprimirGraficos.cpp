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
    const bool entera = hoja.Vista.Zoom == 1 && hoja.Vista.PanX == 0 && hoja.Vista.PanY == 0;
    if (entera) hoja.PorGrupos = true;
    const int losas = pedido.Todas ? origen.Proyecto.RegistrosProyecto.NumeroRegistros() : 1;
    const std::size_t total = pedido.Dibujos.size() * static_cast<std::size_t>(losas);
    std::size_t hechos = 0;
    losas::salida::RecorrerLosas(origen, pedido.Todas, [&](const losas::salida::LosaDelProyecto& losa) {
        const std::size_t hojas = dibujo::losa::HojasDe(losa.Datos);
        for (const losas::salida::DibujoDeLosa& dibujo : pedido.Dibujos) {
            Avisar(avance, hechos++, total);
            hoja.VistaActual = dibujo.Vista;
            hoja.SoloReacciones = dibujo.SoloReacciones;
            for (std::size_t k = 1; k <= (entera ? hojas : 1); ++k) {
                if (entera) hoja.Grupo = k;
                papel.Pagina([&](dibujo::Lienzo& lienzo) {
                    dibujo::losa::GuardeGraficos1(lienzo, hoja, {losa.Datos, losa.Generales, losa.Resultados},
                                                  pagina);
                });
            }
        }
    });
}

}  // namespace trabex::losas::ui::qt
