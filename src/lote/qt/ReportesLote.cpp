#include "lote/qt/ReportesLote.h"

#include <array>
#include <string>
#include <utility>

#include "reports/montaje/qt/SuperficieQt.h"
#include "reports/salidas/MotorReportes.h"
#include "reports/salidas/qt/EscritorPdf.h"
#include "slab/salida/GraficosLosas.h"
#include "store/tablas/TablasLosa.h"

namespace trabex::lote::qt {

namespace {

/// Nobody watches the batch program.
class SinPanel : public montaje::PanelProgreso {
  public:
    void Mostrar() override {}
    void Avanzar(double, const std::string&) override {}
    void Ocultar() override {}
};

constexpr std::array<std::pair<int, const char*>, 4> Formatos{{{salidas::FormatoPdf, ".pdf"},
                                                               {salidas::FormatoHtml, ".htm"},
                                                               {salidas::FormatoXls, ".xls"},
                                                               {salidas::FormatoRtf, ".rtf"}}};

void Exportar(const montaje::EntornoReportes& entorno, const char* diseno, const char* nombre) {
    salidas::MotorReportes motor;
    motor.Registrar(salidas::FormatoPdf, salidas::qt::EscribirPdf);
    salidas::Reporte reporte(entorno.CaminoPrograma / "Reportes" / diseno, {});
    reporte.Ubicar(montaje::TemporalMdb(entorno));
    for (const auto& [codigo, extension] : Formatos)
        motor.Exportar(reporte.Contenido(), codigo,
                       entorno.CaminoUsuario / "reportes" / (std::string(nombre) + extension));
}

}  // namespace

void EscribirReportes(const std::filesystem::path& programa, const std::filesystem::path& proyecto,
                      const std::filesystem::path& carpeta) {
    almacen::tablas::ProyectoAbierto abierto;
    almacen::AbrirCopiaEnMemoria(abierto.ConexionProyecto, proyecto);
    almacen::AbrirRecordset(abierto.ConexionProyecto, abierto.RegistrosProyecto,
                            almacen::tablas::ConsultaListaLosas);
    DatosDelProyecto datos;
    DatosGenerales generales;
    almacen::tablas::LeerDatosGenerales(abierto.ConexionProyecto, "", datos, generales);
    std::error_code error;
    for (const char* parte : {"reportes", "Trabajo"})
        std::filesystem::create_directories(carpeta / parte, error);

    const montaje::EntornoReportes entorno{programa, carpeta, ""};
    const losas::salida::ProyectoParaReporte origen{abierto, datos, generales};
    montaje::EstadoReportes estado{
        .OpcionExportarLosas = 1, .ExportarDesplazamientos = true, .OpcionGrafico = 1};
    montaje::qt::SuperficieQt superficie;
    SinPanel panel;
    losas::salida::GuardeGraficos(entorno, origen, dibujo::losa::HojaLosa{}, superficie, panel, estado);
    Exportar(entorno, "Grafico.rpt", "losas-graficos");
    losas::salida::LLeneResultados(entorno, origen, estado);
    Exportar(entorno, "ResultadosLosa.rpt", "losas-resultados");
}

}  // namespace trabex::lote::qt
