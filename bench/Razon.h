#pragma once

#include <algorithm>
#include <ctime>

#include <benchmark/benchmark.h>

namespace trabex::medida {

/// Seconds of processor that this thread has had: a machine that does other things too leaves ratios alone.
inline double Ahora() {
    timespec tiempo{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &tiempo);
    return static_cast<double>(tiempo.tv_sec) + 1e-9 * static_cast<double>(tiempo.tv_nsec);
}

/// Seconds of processor that a call takes, over `veces` of them.
template <class Llamada>
double Segundos(benchmark::IterationCount veces, Llamada llamada) {
    const double inicio = Ahora();
    for (benchmark::IterationCount i = 0; i < veces; ++i) llamada();
    return (Ahora() - inicio) / static_cast<double>(veces);
}

/// Measures `propia`, then the reference as often (a thousand times at most), and tells their ratio.
template <class Propia, class Referencia>
void MedirConRazon(benchmark::State& estado, Propia propia, Referencia referencia) {
    double suma = 0;
    for (auto _ : estado) suma += Segundos(1, propia);
    const double porVez = suma / static_cast<double>(estado.iterations());
    const double otra = Segundos(std::min<benchmark::IterationCount>(estado.iterations(), 1000), referencia);
    estado.counters["referencia_us"] = otra * 1e6;
    estado.counters["razon"] = porVez / otra;
}

}  // namespace trabex::medida
