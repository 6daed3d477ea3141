// A slab's calculation beside LAPACK's band Cholesky alone on the same matrix, and the steel of a section,
// whose steps can be told to a listener, beside its bare formulas, in the same run.

#include <array>
#include <cmath>
#include <vector>

#include <benchmark/benchmark.h>

#include "Razon.h"
#include "base/RefuerzoFlexion.h"
#include "slab/Analizar.h"
#include "slab/CalcularLosa.h"
#include "support/LosasDePrueba.h"

extern "C" void dpbsv_(const char* uplo, const int* n, const int* kd, const int* nrhs, double* ab,
                       const int* ldab, double* b, const int* ldb, int* info, std::size_t uplo_len);

namespace {

using namespace trabex;
using namespace trabex::losas;

Losa LosaLarga(std::int64_t tramos) {
    return prueba::LosaUniforme(static_cast<std::size_t>(tramos), 5, 290, 90);
}

/// The stiffness of `tramos` horizontal spans of 5 m on a pin and rollers, as LAPACK's upper band.
struct SistemaBanda {
    int n, kd = 5, ldab = 6, nrhs = 2;
    std::vector<double> AB, B;

    explicit SistemaBanda(std::int64_t tramos) : n(static_cast<int>(3 * (tramos + 1))) {
        const double L = 5, b = 0.1, h = 0.25, E = 15100 * std::sqrt(250.0) * 1e4;
        const double EA = E * b * h / L, EI = E * b * h * h * h / 12;
        const double p = 12 * EI / (L * L * L), q = 6 * EI / (L * L), r = 4 * EI / L, t = 2 * EI / L;
        AB.assign(static_cast<std::size_t>(n) * 6, 0);
        B.assign(static_cast<std::size_t>(n) * 2, 1);
        const auto sumar = [&](std::int64_t i, std::int64_t j, double valor) {
            AB[static_cast<std::size_t>(j * 6 + 5 + i - j)] += valor;
        };
        for (std::int64_t s = 0; s < tramos; ++s) {
            const std::int64_t a = 3 * s, c = a + 3;
            sumar(a, a, EA), sumar(a, c, -EA), sumar(c, c, EA);
            sumar(a + 1, a + 1, p), sumar(a + 1, a + 2, -q), sumar(a + 1, c + 1, -p), sumar(a + 1, c + 2, -q);
            sumar(a + 2, a + 2, r), sumar(a + 2, c + 1, q), sumar(a + 2, c + 2, t);
            sumar(c + 1, c + 1, p), sumar(c + 1, c + 2, q), sumar(c + 2, c + 2, r);
        }
        sumar(0, 0, AB[5] * 1e12 + 1e12);
        for (std::int64_t j = 0; j <= tramos; ++j)
            sumar(3 * j + 1, 3 * j + 1, AB[static_cast<std::size_t>((3 * j + 1) * 6 + 5)] * 1e12 + 1e12);
    }
};

void Dpbsv(benchmark::State& estado) {
    const SistemaBanda original(estado.range(0));
    SistemaBanda copia = original;
    for (auto _ : estado) {
        estado.PauseTiming();
        copia.AB = original.AB;
        copia.B = original.B;
        estado.ResumeTiming();
        int info = 0;
        dpbsv_("U", &copia.n, &copia.kd, &copia.nrhs, copia.AB.data(), &copia.ldab, copia.B.data(), &copia.n,
               &info, 1);
        if (info != 0) estado.SkipWithError("dpbsv failed");
    }
}
BENCHMARK(Dpbsv)->Arg(10919)->Unit(benchmark::kMicrosecond);

void MedirAnalizar(benchmark::State& estado) {
    const Losa losa = LosaLarga(estado.range(0));
    ResultadosLosa resultados;
    for (auto _ : estado) Analizar(losa, {}, Pasos{}, resultados);
}
BENCHMARK(MedirAnalizar)->Arg(10919)->Unit(benchmark::kMicrosecond);

void MedirCalcularLosa(benchmark::State& estado) {
    const Losa losa = LosaLarga(estado.range(0));
    ResultadosLosa resultados;
    for (auto _ : estado) CalcularLosa(losa, {}, resultados);
    estado.SetComplexityN(estado.range(0));
}
BENCHMARK(MedirCalcularLosa)
    ->Arg(10)
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10919)
    ->Unit(benchmark::kMicrosecond)
    ->Complexity();

/// Moments of a section below its limit, none like another to the branch predictor.
constexpr std::size_t Momentos = 1000;
std::array<double, Momentos> MomentosDeSeccion() {
    std::array<double, Momentos> momentos{};
    double azar = 0.37;
    for (double& momento : momentos) {
        azar = std::fmod(azar * 997 + 0.123, 1);
        momento = 150000 * azar;
    }
    return momentos;
}

/// RefuerzoFlexion below the limit moment as it would be if nothing could be told.
[[gnu::noinline]] double AceroSinPasos(double Mu, const SeccionFlexion& seccion,
                                       const Materiales& materiales) {
    const double d = seccion.h - seccion.Recubrimiento;
    const double fc = materiales.FC;
    const double fy = materiales.FY;
    if (Mu > d * d * (((fc * 0.2) * 0.882) * seccion.b)) return 0;
    const double r = 1 - 2 * (Mu / (d * d * (fc * seccion.b))) / 0.85;
    return r < 0 ? 0 : Mu / ((fy * (1 - (1 - std::sqrt(r)) * 0.85 * 0.59)) * d);
}

/// A thousand sections: nobody listens (0), or somebody does (1).
void MedirOyente(benchmark::State& estado) {
    const SeccionFlexion seccion{10, 25, 2.5};
    const Materiales materiales{250, 4200};
    const std::array<double, Momentos> momentos = MomentosDeSeccion();
    Relato relato;
    const bool escucha = estado.range(0) != 0;
    medida::MedirConRazon(
        estado,
        [&] {
            const Pasos pasos = escucha ? Pasos(relato) : Pasos();
            for (const double Mu : momentos)
                benchmark::DoNotOptimize(RefuerzoFlexion(Mu, seccion, materiales, pasos));
            relato.clear();
        },
        [&] {
            for (const double Mu : momentos) benchmark::DoNotOptimize(AceroSinPasos(Mu, seccion, materiales));
        });
}
BENCHMARK(MedirOyente)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

}  // namespace
