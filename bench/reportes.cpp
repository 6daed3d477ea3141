// Reports of slabs of 8 spans: results of 200 slabs beside their calculation alone, and drawings of a few and
// of four times as many, to each format: pages or drawings a second, and the peak of memory, which must not
// follow the number of drawings.

#include <QGuiApplication>

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include "reports/montaje/qt/SuperficieQt.h"
#include "reports/salidas/MotorReportes.h"
#include "reports/salidas/qt/EscritorPdf.h"
#include "reports/salidas/qt/Paginador.h"
#include "slab/CalcularLosa.h"
#include "slab/salida/GraficosLosas.h"
#include "support/CarpetaTemporal.h"
#include "support/LosasDePrueba.h"
#include "support/ProyectoDePrueba.h"
#include "support/TemporalDePrueba.h"

namespace {

using namespace trabex;
using namespace trabex::almacen;
using namespace trabex::almacen::tablas;
using namespace trabex::dibujo::losa;
using namespace trabex::losas;
using namespace trabex::losas::salida;
using namespace trabex::montaje;
using namespace trabex::montaje::qt;
using namespace trabex::prueba;
using namespace trabex::salidas;
using namespace trabex::salidas::qt;

constexpr int Losas = 200;
constexpr std::size_t Tramos = 8;

class Resultados : public benchmark::Fixture {
  public:
    void SetUp(benchmark::State&) override {
        if (std::filesystem::exists(Carpeta() / "Temporal.mdb")) return;
        std::vector<Losa> losas;
        for (int i = 1; i <= Losas; ++i) {
            losas.push_back(prueba::LosaUniforme(Tramos, 4.85, 290, 90));
            losas.back().Nombre = "LOSA " + std::to_string(i);
        }
        prueba::EscribirTemporal(Carpeta() / "Temporal.mdb", losas);
    }

  protected:
    static const prueba::CarpetaTemporal& Carpeta() {
        static const prueba::CarpetaTemporal carpeta;
        return carpeta;
    }
    static Reporte Abrir() {
        Reporte reporte(std::filesystem::path(TRABEX_INSTALL) / "Reportes" / "ResultadosLosa.rpt", {});
        reporte.Ubicar(Carpeta() / "Temporal.mdb");
        return reporte;
    }
    static void Anotar(benchmark::State& estado, Reporte& reporte) {
        const double paginas = Paginador(reporte.Contenido()).NumeroPaginas();
        estado.counters["paginas"] =
            benchmark::Counter(paginas, benchmark::Counter::kIsIterationInvariantRate);
        rusage uso{};
        getrusage(RUSAGE_SELF, &uso);
        estado.counters["MiB"] = static_cast<double>(uso.ru_maxrss) / 1024;
    }
};

BENCHMARK_DEFINE_F(Resultados, Componer)(benchmark::State& estado) {
    Reporte reporte = Abrir();
    for (auto _ : estado) {
        reporte.DescartarDatos();
        benchmark::DoNotOptimize(reporte.Contenido());
    }
    Anotar(estado, reporte);
}
BENCHMARK_REGISTER_F(Resultados, Componer)->Unit(benchmark::kMillisecond);

BENCHMARK_DEFINE_F(Resultados, Exportar)(benchmark::State& estado) {
    Reporte reporte = Abrir();
    reporte.Contenido();
    MotorReportes motor;
    motor.Registrar(FormatoPdf, EscribirPdf);
    for (auto _ : estado)
        motor.Exportar(reporte.Contenido(), static_cast<int>(estado.range(0)), Carpeta() / "salida");
    Anotar(estado, reporte);
}
BENCHMARK_REGISTER_F(Resultados, Exportar)
    ->Arg(FormatoHtml)
    ->Arg(FormatoRtf)
    ->Arg(FormatoPdf)
    ->Arg(FormatoXls)
    ->Unit(benchmark::kMillisecond);

/// The reference: what a results report calculates anew.
void Calcular(benchmark::State& estado) {
    const Losa losa = prueba::LosaUniforme(Tramos, 4.85, 290, 90);
    for (auto _ : estado) {
        for (int i = 0; i < Losas; ++i) {
            ResultadosLosa resultados;
            CalcularLosa(losa, {}, resultados);
            benchmark::DoNotOptimize(resultados.MaxCorte);
        }
    }
}
BENCHMARK(Calcular)->Unit(benchmark::kMillisecond);

class SinPanel : public PanelProgreso {
  public:
    void Mostrar() override {}
    void Avanzar(double, const std::string&) override {}
    void Ocultar() override {}
};

/// Staging and export of one drawing a slab. The first argument is the number of slabs, the second the
/// format.
void Dibujar(benchmark::State& estado) {
    const auto losas = static_cast<int>(estado.range(0));
    const prueba::CarpetaTemporal carpeta;
    std::filesystem::create_directories(carpeta / "Trabajo");
    std::filesystem::create_directories(carpeta / "Imagen");
    CrearBaseDatos(carpeta / "obra.los", prueba::EsquemaDeProyecto());
    CrearBaseDatos(carpeta.Camino() / "Imagen" / "Temporal.tbx",
                   prueba::LeerArchivo(TRABEX_INSTALL "/Imagen/Temporal.sql"));
    ProyectoAbierto proyecto;
    prueba::Abrir(proyecto, carpeta / "obra.los");
    for (int i = 0; i < losas; ++i) {
        Losa losa = prueba::LosaUniforme(Tramos, 4.85, 290, 90);
        losa.Nombre = "LOSA " + std::to_string(i);
        prueba::AgregarLosa(proyecto, losa);
    }
    const EntornoReportes entorno{carpeta.Camino(), carpeta.Camino(), ""};
    EstadoReportes pedido{.OpcionGrafico = 3};
    SuperficieQt superficie;
    SinPanel panel;
    MotorReportes motor;
    motor.Registrar(FormatoPdf, EscribirPdf);
    for (auto _ : estado) {
        GuardeGraficos(entorno, {proyecto, {}, {}}, HojaLosa{}, superficie, panel, pedido);
        Reporte reporte(std::filesystem::path(TRABEX_INSTALL) / "Reportes" / "Grafico.rpt", {});
        reporte.Ubicar(TemporalMdb(entorno));
        motor.Exportar(reporte.Contenido(), static_cast<int>(estado.range(1)), carpeta / "salida");
    }
    estado.counters["dibujos"] = benchmark::Counter(losas, benchmark::Counter::kIsIterationInvariantRate);
    rusage uso{};
    getrusage(RUSAGE_SELF, &uso);
    estado.counters["MiB"] = static_cast<double>(uso.ru_maxrss) / 1024;
}
BENCHMARK(Dibujar)
    ->ArgsProduct({{10, 40}, {FormatoHtml, FormatoRtf, FormatoPdf, FormatoXls}})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

}  // namespace

int main(int argc, char** argv) {
    const QGuiApplication aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
