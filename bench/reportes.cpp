// The report of results of 200 slabs of 8 spans, to each format: pages a second and the peak of memory.

#include <QGuiApplication>

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include "reports/MotorReportes.h"
#include "reports/qt/EscritorPdf.h"
#include "reports/qt/Paginador.h"
#include "support/CarpetaTemporal.h"
#include "support/TemporalDePrueba.h"

namespace {

using namespace trabex;

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
    ->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
    const QGuiApplication aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
