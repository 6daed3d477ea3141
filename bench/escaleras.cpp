// Stairs, helices and Markus panels, each beside what the same answer costs otherwise, in the same run.
//
// A stair and a helix are solved in closed form. Their reference is LAPACK's band Cholesky alone on the
// stiffness of a chain of bars in space with as many stations: the stair as two flights of ten bars and a
// landing of twelve, the helix at an interval of 1 degree over 360. The reference gives no steel and no
// stirrups. Ten thousand Markus rows stand beside the bare formula on arrays of numbers.

#include <cmath>
#include <cstdlib>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

#include "Razon.h"
#include "helical/CalcularEscaleraH.h"
#include "markus/CalculeMarcus.h"
#include "stairs/CalcularEscaleraT.h"

extern "C" void dpbsv_(const char* uplo, const int* n, const int* kd, const int* nrhs, double* ab,
                       const int* ldab, double* b, const int* ldb, int* info, std::size_t uplo_len);

namespace {

using namespace trabex;
using namespace trabex::escaleras;
using namespace trabex::helices;
using namespace trabex::marcus;
using medida::MedirConRazon;

/// LAPACK on a band as wide as that of a chain of bars in space, six unknowns a joint, well conditioned.
class CadenaDeBarras {
  public:
    explicit CadenaDeBarras(int barras) : n_(6 * (barras - 1)) {
        original_.assign(static_cast<std::size_t>(n_) * 12, -0.5);
        for (int j = 0; j < n_; ++j) original_[static_cast<std::size_t>(j) * 12 + 11] = 13;
    }
    void operator()() {
        const int kd = 11;
        const int ldab = 12;
        const int nrhs = 1;
        AB_ = original_;
        B_.assign(static_cast<std::size_t>(n_), 1);
        int info = 0;
        dpbsv_("U", &n_, &kd, &nrhs, AB_.data(), &ldab, B_.data(), &n_, &info, 1);
        if (info != 0) std::abort();
    }

  private:
    int n_;
    std::vector<double> original_, AB_, B_;
};

void MedirEscaleraT(benchmark::State& estado) {
    const DatosEscaleraT escalera = EscaleraTNuevaDe("E-1", "");
    ResultadosEscaleraT resultados;
    MedirConRazon(
        estado, [&] { CalcularEscaleraT(escalera, {}, resultados); }, CadenaDeBarras(32));
}
BENCHMARK(MedirEscaleraT)->Unit(benchmark::kMicrosecond);

void MedirEscaleraH(benchmark::State& estado) {
    DatosEscaleraH escalera = EscaleraHNuevaDe("H-1", "");
    escalera.Angulo = 360;
    escalera.Inter = 1;
    ResultadosEscaleraH resultados;
    MedirConRazon(
        estado, [&] { CalcularEscaleraH(escalera, {}, resultados); }, CadenaDeBarras(360));
}
BENCHMARK(MedirEscaleraH)->Unit(benchmark::kMicrosecond);

constexpr int Panos = 10000;

double Longitud(int i) {
    return 3 + (i * 7919 % 500) * 0.01;
}

/// The formula of the first case on arrays of numbers.
class FormulaSola {
  public:
    FormulaSola() : WX_(Panos) {
        for (int i = 0; i < Panos; ++i) {
            LX_.push_back(Longitud(i));
            LY_.push_back(Longitud(i + 37));
        }
    }
    void operator()() {
        for (std::size_t i = 0; i < Panos; ++i) {
            const double r = std::pow(LY_[i] / LX_[i], 4);
            WX_[i] = 900 * (r / (r + 1));
        }
        benchmark::DoNotOptimize(WX_.data());
        benchmark::ClobberMemory();
    }

  private:
    std::vector<double> LX_, LY_, WX_;
};

void MedirPanos(benchmark::State& estado) {
    std::vector<PanoMarcus> panos;
    for (int i = 0; i < Panos; ++i)
        panos.push_back({900, static_cast<std::int16_t>(i % 9 + 1), Longitud(i), Longitud(i + 37), {}});
    MedirConRazon(
        estado, [&] { CalculeMarcus(panos); }, FormulaSola());
}
BENCHMARK(MedirPanos)->Unit(benchmark::kMicrosecond);

}  // namespace
