#include "reports/ui/VistaPreviaR.h"

namespace trabex::reportes::ui {

VistaPreviaR::VistaPreviaR(EntornoSalida& entorno, const cuadricula::Cuadricula& GrillaPreview,
                           const std::string& titulo, documento::Alineacion lado, bool apaisada)
    : entorno_(entorno), grilla_(GrillaPreview) {
    const programa::Aplicacion& aplicacion = entorno.LaAplicacion;
    membrete_.Titulo = titulo;
    membrete_.Usuario = aplicacion.Usuario;
    if (!aplicacion.NombreProyecto.empty()) membrete_.Proyecto = aplicacion.Datos.Proyecto;
    membrete_.Lado = lado;
    ajustes_.Apaisada = apaisada;
}

std::string VistaPreviaR::Rotulo(int pagina, int paginas) {
    return std::to_string(pagina) + "  de  " + std::to_string(paginas);
}

bool VistaPreviaR::Imprimir(const cuadricula::AjustesDeImpresion& ajustes, const PaginasAImprimir& paginas) {
    if (entorno_.Servicios.Caja.Mostrar(
            programa::Pregunta("¿Imprimir el Reporte?", "Reportes del Programa...")) != programa::RespuestaSi)
        return false;
    ajustes_ = ajustes;
    ExportadorReportes exportador(entorno_);
    try {
        return exportador.Imprimir(Paginas(), {.Preguntar = false, .Paginas = paginas});
    } catch (const ErrorEjecucion& error) {
        exportador.Avisar(error);
        return false;
    }
}

}  // namespace trabex::reportes::ui
