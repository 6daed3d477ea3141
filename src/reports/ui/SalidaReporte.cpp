#include "reports/ui/SalidaReporte.h"

#include <chrono>

#include "base/AlSalir.h"
#include "base/Archivos.h"

namespace trabex::reportes::ui {

namespace {

constexpr std::array<const char*, 5> MaquetasTabulares{"Marcus.rpt", "EscaleraH.rpt", "AnalisisCarga.rpt",
                                                       "ResultadosLosa.rpt", "AnalisisCarga1.rpt"};

bool EsArchivo(std::uint8_t salida) {
    return salida < Salidas.size() && Salidas[salida].Titulo != nullptr;
}

}  // namespace

montaje::EntornoReportes EntornoSalida::Montaje() const {
    return {Servicios.Carpetas.CaminoPrograma, Servicios.Carpetas.Trabajo(), LaAplicacion.Usuario};
}

void ExportadorReportes::AbrirCarpeta() {
    programa::AbrirODecir(entorno_.Servicios, entorno_.Servicios.Carpetas.ReportesExportados());
}

std::optional<std::filesystem::path> ExportadorReportes::PedirArchivo(std::uint8_t salida) {
    programa::PeticionArchivo peticion;
    peticion.Titulo = Salidas[salida].Titulo;
    peticion.Filtro = Salidas[salida].Filtro;
    peticion.Carpeta = entorno_.Servicios.Carpetas.ReportesExportados();
    peticion.Guardar = true;
    peticion.AvisarReemplazo = true;
    auto elegido = entorno_.Servicios.Dialogos.Elegir(peticion);
    if (elegido) entorno_.Estado.ArchivoExportado = *elegido;
    return elegido;
}

bool ExportadorReportes::ConPanel(const std::string& rotulo,
                                  const std::function<void(const Avance&)>& trabajo) {
    if (!entorno_.CrearPanel) {
        trabajo({});
        return true;
    }
    using Reloj = std::chrono::steady_clock;
    constexpr auto paso = std::chrono::milliseconds(50);
    std::unique_ptr<montaje::PanelProgreso> panel;
    const AlSalir ocultar([&panel] {
        if (panel) panel->Ocultar();
    });
    Reloj::time_point ultimo{};
    try {
        trabajo([&](double parte) {
            if (Reloj::now() - ultimo < paso) return true;
            if (!panel) {
                panel = entorno_.CrearPanel();
                panel->Mostrar();
            }
            panel->Avanzar(100 * parte, rotulo);
            ultimo = Reloj::now();
            return !panel->Cancelado();
        });
    } catch (const TrabajoCancelado&) {
        return false;
    }
    return true;
}

bool ExportadorReportes::Exportar(const documento::Documento& documento, std::uint8_t salida) {
    const std::filesystem::path& archivo = entorno_.Estado.ArchivoExportado;
    const auto escribir = [&](const Avance& avance) {
        entorno_.Motor.Exportar(documento, Salidas[salida].Codigo, archivo, avance);
    };
    if (!ConPanel("Exportando el Reporte: " + TextoDeCamino(archivo.filename()), escribir)) return false;
    const std::string texto = "¿Desea Abrir el Archivo " + TextoDeCamino(archivo) + "?";
    if (entorno_.Servicios.Caja.Mostrar(programa::Pregunta(texto, "Abrir el Archivo Exportado...")) !=
        programa::RespuestaSi)
        return true;
    if (!entorno_.Servicios.Sistema.AbrirArchivo(archivo)) throw programa::SinProgramaQueAbra();
    return true;
}

bool ExportadorReportes::HayImpresoras() {
    if (!entorno_.LasImpresoras.Disponibles().empty()) return true;
    programa::Mensaje mensaje;
    mensaje.Texto = "No hay impresoras instaladas en el sistema.";
    mensaje.Encabezado = "Imprimir el Reporte...";
    mensaje.Icono = programa::IconoCaja::Advertencia;
    entorno_.Servicios.Caja.Mostrar(mensaje);
    return false;
}

bool ExportadorReportes::Imprimir(const documento::Documento& documento, const PedidoDeImpresion& pedido) {
    if (!HayImpresoras()) return false;
    bool impreso = false;
    const bool entero = ConPanel("Imprimiendo: " + documento.Titulo, [&](const Avance& avance) {
        impreso = entorno_.LasImpresoras.Imprimir(documento, entorno_.Estado.Impresora, pedido, avance);
    });
    return entero && impreso;
}

void ExportadorReportes::Avisar(const ErrorEjecucion& error) {
    entorno_.Servicios.Caja.Mostrar(programa::MensajeDeError(error, "Error en el Reporte..."));
}

void SalidaReporte::Aceptar(std::uint8_t salida) {
    entorno_.Estado.FormatoSalida = salida;
    if (EsArchivo(salida) && !exportador_.PedirArchivo(salida)) return;
    try {
        if (!Enviar(salida)) return;
    } catch (const ErrorEjecucion& error) {
        pantalla_.PunteroDeEspera(false);
        exportador_.Avisar(error);
        return;
    }
    AlTerminar();
    pantalla_.Cerrar();
}

/// False when there is nothing to send, or the engineer thought better of it.
bool SalidaReporte::Enviar(std::uint8_t salida) {
    const std::string maqueta = Maqueta();
    if (maqueta.empty()) return false;
    pantalla_.PunteroDeEspera(true);
    salidas::Reporte reporte(entorno_.Servicios.Carpetas.CaminoPrograma / "Reportes" / maqueta,
                             entorno_.LaAplicacion.SeparadoresLocales);
    Ajustar(reporte);
    reporte.DescartarDatos();
    reporte.Ubicar(montaje::TemporalMdb(entorno_.Montaje()));
    const documento::Documento& documento = reporte.Contenido();
    pantalla_.PunteroDeEspera(false);
    if (salida == SalidaImpresora) return exportador_.Imprimir(documento);
    if (EsArchivo(salida)) return exportador_.Exportar(documento, salida);
    pantalla_.Ver(documento);
    return true;
}

std::string ImpreReport::Maqueta() const {
    const std::int16_t actual = entorno_.Estado.ReporteActual;
    const bool existe = actual >= 1 && static_cast<std::size_t>(actual) <= MaquetasTabulares.size();
    return existe ? MaquetasTabulares[static_cast<std::size_t>(actual - 1)] : "";
}

void ImpreGrafico::Ajustar(salidas::Reporte& reporte) const {
    if (entorno_.Estado.GraficoHelicoidal || !entorno_.Estado.GraficoAutoportante) return;
    const montaje::PapelDeGraficos& papel = entorno_.Estado.Papel;
    reporte.PonerPapel(papel.A4 ? documento::TamanoPagina::A4 : documento::TamanoPagina::Carta,
                       papel.Apaisado);
}

std::string ImpreGrafico::Maqueta() const {
    if (entorno_.Estado.GraficoHelicoidal) return "GraficoH.rpt";
    return entorno_.Estado.GraficoAutoportante ? "GraficoAutoportantes.rpt" : "Grafico.rpt";
}

}  // namespace trabex::reportes::ui
