#include "lote/qt/ReportesLote.h"

#include <array>
#include <string>
#include <utility>

#include "reports/montaje/qt/SuperficieQt.h"
#include "reports/salidas/MotorReportes.h"
#include "reports/salidas/qt/EscritorPdf.h"
#include "slab/salida/GraficosLosas.h"
#include "store/tablas/TablasLosa.h"

namespace trabex {

namespace {

/// Nobody watches the batch program.
class SinPanel : public PanelProgreso {
  public:
    void Mostrar() override {}
    void Avanzar(double, const std::string&) override {}
    void Ocultar() override {}
};

constexpr std::array<std::pair<int, const char*>, 4> Formatos{
    {{FormatoPdf, ".pdf"}, {FormatoHtml, ".htm"}, {FormatoXls, ".xls"}, {FormatoRtf, ".rtf"}}};

void Exportar(const EntornoReportes& entorno, const char* diseno, const char* nombre) {
    MotorReportes motor;
    motor.Registrar(FormatoPdf, EscribirPdf);
    Reporte reporte(entorno.CaminoPrograma / "Reportes" / diseno, {});
    reporte.Ubicar(TemporalMdb(entorno));
    for (const auto& [codigo, extension] : Formatos)
        motor.Exportar(reporte.Contenido(), codigo,
                       entorno.CaminoUsuario / "reportes" / (std::string(nombre) + extension));
}

}  // namespace

void EscribirReportes(const std::filesystem::path& programa, const std::filesystem::path& proyecto,
                      const std::filesystem::path& carpeta) {
    ProyectoAbierto abierto;
    AbrirCopiaEnMemoria(abierto.ConexionProyecto, proyecto);
    AbrirRecordset(abierto.ConexionProyecto, abierto.RegistrosProyecto, ConsultaListaLosas);
    DatosDelProyecto datos;
    DatosGenerales generales;
    LeerDatosGenerales(abierto.ConexionProyecto, "", datos, generales);
    std::error_code error;
    for (const char* parte : {"reportes", "Trabajo"})
        std::filesystem::create_directories(carpeta / parte, error);

    const EntornoReportes entorno{programa, carpeta, ""};
    const ProyectoParaReporte origen{abierto, datos, generales};
    EstadoReportes estado{.OpcionExportarLosas = 1, .ExportarDesplazamientos = true, .OpcionGrafico = 1};
    SuperficieQt superficie;
    SinPanel panel;
    GuardeGraficos(entorno, origen, HojaLosa{}, superficie, panel, estado);
    Exportar(entorno, "Grafico.rpt", "losas-graficos");
    LLeneResultados(entorno, origen, estado);
    Exportar(entorno, "ResultadosLosa.rpt", "losas-resultados");
}

}  // namespace trabex
