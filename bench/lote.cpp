// The batch program's road on a project of 2000 slabs of 8 spans, phase by phase.

#include <array>

#include <benchmark/benchmark.h>

#include "base/Archivos.h"
#include "lote/Calculo.h"
#include "slab/CalcularLosa.h"
#include "slab/salida/LosasJson.h"
#include "slab/salida/ModuloLosas.h"
#include "store/tablas/TablasLosa.h"
#include "support/CarpetaTemporal.h"
#include "support/LosasDePrueba.h"
#include "support/ProyectoDePrueba.h"

namespace {

using namespace trabex;
using namespace trabex::almacen;
using namespace trabex::almacen::tablas;
using namespace trabex::losas;
using namespace trabex::lote;

constexpr int Losas = 2000;
constexpr int Tramos = 8;

/// The rows of 2000 slabs as SQL text.
std::string FilasDeLosas() {
    std::string filas;
    for (int n = 1; n <= Losas; ++n) {
        const std::string nombre = "'LOSA " + std::to_string(n) + "'";
        filas += "INSERT INTO LosaDatos VALUES (" + nombre + ", 0, 0.1, 0.25, 0.5, 1, 0.2, 0.05);";
        for (int i = 1; i <= Tramos + 1; ++i) {
            const std::string numero = ", " + std::to_string(i);
            if (i <= Tramos)
                filas +=
                    "INSERT INTO LosaTramos VALUES (" + nombre + numero + ", 4.85, 290, 90, NULL, NULL);";
            filas += "INSERT INTO LosaEjes VALUES (" + nombre + numero + ", 'E', " + (i == 1 ? "1" : "2") +
                     ", 0, 0, 0);";
        }
    }
    return filas;
}

/// The project, made once for all measures.
class Proyecto : public benchmark::Fixture {
  public:
    void SetUp(benchmark::State&) override {
        if (!std::filesystem::exists(Camino()))
            CrearBaseDatos(Camino(), prueba::EsquemaDeProyecto() + FilasDeLosas());
    }

  protected:
    const std::filesystem::path& Camino() const {
        static const prueba::CarpetaTemporal carpeta;
        static const std::filesystem::path camino = carpeta / "dos mil.los";
        return camino;
    }
    std::vector<Losa> Leer() const {
        ProyectoAbierto proyecto;
        AbrirCopiaEnMemoria(proyecto.ConexionProyecto, Camino());
        AbrirRecordset(proyecto.ConexionProyecto, proyecto.RegistrosProyecto, ConsultaListaLosas);
        std::vector<Losa> losas(static_cast<std::size_t>(proyecto.RegistrosProyecto.NumeroRegistros()));
        for (std::size_t i = 0; i < losas.size(); ++i) {
            proyecto.RegistrosProyecto.MoverA(static_cast<int>(i) + 1);
            LeerLosa(proyecto, losas[i]);
        }
        return losas;
    }
};

BENCHMARK_DEFINE_F(Proyecto, Leer)(benchmark::State& estado) {
    for (auto _ : estado) benchmark::DoNotOptimize(Leer());
}
BENCHMARK_REGISTER_F(Proyecto, Leer)->Unit(benchmark::kMillisecond)->UseRealTime();

BENCHMARK_DEFINE_F(Proyecto, Calcular)(benchmark::State& estado) {
    const std::vector<Losa> losas = Leer();
    for (auto _ : estado) {
        for (const Losa& losa : losas) {
            ResultadosLosa resultados;
            CalcularLosa(losa, {}, resultados);
            benchmark::DoNotOptimize(resultados);
        }
    }
}
BENCHMARK_REGISTER_F(Proyecto, Calcular)->Unit(benchmark::kMillisecond)->UseRealTime();

BENCHMARK_DEFINE_F(Proyecto, Json)(benchmark::State& estado) {
    const Losa losa = Leer().front();
    ResultadosLosa resultados;
    CalcularLosa(losa, {}, resultados);
    for (auto _ : estado) {
        for (int n = 0; n < Losas; ++n) benchmark::DoNotOptimize(salida::LosaJson(losa, resultados, {}));
    }
}
BENCHMARK_REGISTER_F(Proyecto, Json)->Unit(benchmark::kMillisecond)->UseRealTime();

BENCHMARK_DEFINE_F(Proyecto, Todo)(benchmark::State& estado) {
    const std::filesystem::path destino = Camino().parent_path() / "resultados.json";
    const std::array<const Modulo*, 1> modulos{&salida::ModuloLosas};
    const Marcha marcha{static_cast<unsigned>(estado.range(0)), {}};
    for (auto _ : estado) {
        ProyectoCalculado calculado;
        CalcularProyecto(Camino(), modulos, marcha, calculado);
        EscribirArchivo(destino, DocumentoJson(calculado, marcha));
    }
}
BENCHMARK_REGISTER_F(Proyecto, Todo)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
