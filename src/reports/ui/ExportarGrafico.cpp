#include "reports/ui/ExportarGrafico.h"

namespace trabex::reportes::ui {

namespace {

constexpr const char* Encabezado = "Exportar Gráficos...";

}  // namespace

std::filesystem::path ExportarGrafico::Carpeta() const {
    const std::filesystem::path& ultima = entorno_.Estado.CarpetaGraficos;
    return ultima.empty() ? entorno_.Servicios.Carpetas.ReportesExportados() : ultima;
}

void ExportarGrafico::AbrirCarpeta() {
    programa::AbrirODecir(entorno_.Servicios, Carpeta());
}

void ExportarGrafico::ExportarPantalla(const FormatoGrafico& formato) {
    const auto archivo = entorno_.Servicios.Dialogos.Elegir({.Titulo = "Salvar el Gráfico Seleccionado",
                                                             .Filtro = formato.Filtro,
                                                             .Carpeta = Carpeta(),
                                                             .Guardar = true,
                                                             .AvisarReemplazo = true});
    if (!archivo) return;
    try {
        pantalla_.Guardar(*archivo, formato);
    } catch (const ErrorEjecucion& error) {
        entorno_.Servicios.Caja.Mostrar(programa::MensajeDeError(error, Encabezado));
        return;
    }
    entorno_.Estado.CarpetaGraficos = archivo->parent_path();
    programa::Mensaje hecho;
    hecho.Texto = "¡El Reporte se Exportó con Exito!";
    hecho.Encabezado = Encabezado;
    entorno_.Servicios.Caja.Mostrar(hecho);
}

}  // namespace trabex::reportes::ui
