#include "slab/EsfuerzosTramo.h"

#include <cmath>

#include "base/Round.h"

namespace trabex::losas {

namespace {

/// A walk of 1000 steps takes a few more when the step is rounded; one whose step vanishes has no end of its
/// own.
constexpr int EstacionesPosibles = 2000;

/// First station with V ≤ 0, by thousandths of the span; 0 when there is none.
double CorteNulo(const TramoMayorado& m, double Vi) {
    const double dx = m.Ls / 1000;
    double x = 0;
    for (int k = 0; k < EstacionesPosibles && (dx < 0 ? x >= m.Ls : x <= m.Ls); ++k, x += dx) {
        double V = Vi - x * m.w;
        if (x >= m.a) V -= m.P;
        if (V <= 0) return x;
    }
    return 0;
}

MomentoDeTramo MomentoConPuntual(const TramoMayorado& m, const ExtremosMayorados& e) {
    const double x = CorteNulo(m, e.Vi);
    if (!(x > 0) || !(x < m.Ls)) return {0, x};
    const double MT = e.Mi + x * e.Vi - m.w * (x * x) / 2;
    return {Round(x, 2) <= Round(m.a, 2) ? MT : MT - (x - m.a) * m.P, x};
}

PuntosInflexion InflexionConPuntual(const TramoMayorado& m, double V, double M) {
    PuntosInflexion puntos;
    const double dx = m.Ls / 1000;
    bool encontrado = false;
    double x = 0;
    for (int k = 0; k < EstacionesPosibles; ++k, x += dx) {
        double momento = M + V * x - m.w * (x * x) / 2;
        if (!(x < m.a)) momento -= (x - m.a) * m.P;
        if (!encontrado && momento >= 0) {
            puntos.salida2 = x;
            encontrado = true;
        }
        if (x > m.Ls) return puntos;
        if (encontrado && momento < 0) {
            puntos.salida1 = x;
            return puntos;
        }
    }
    return puntos;
}

}  // namespace

TramoMayorado MayorarTramo(const Tramo& tramo, const DatosGenerales& generales, double C) {
    return {(tramo.WV * generales.FCV + tramo.Wp * generales.FCP) * C, tramo.p1 * generales.FCP * C,
            tramo.L1 / C, tramo.LT / C};
}

ExtremosMayorados MayorarExtremos(const ResultadosLosa& resultados, const DatosGenerales& generales,
                                  std::size_t i) {
    const EsfuerzosTramo& cp = resultados.ResultadoTramo[CasoPermanente][i];
    const EsfuerzosTramo& cv = resultados.ResultadoTramo[CasoVariable][i];
    return {Mayorar(generales, cp.MomentoA, cv.MomentoA), Mayorar(generales, cp.CorteA, cv.CorteA),
            Mayorar(generales, cp.MomentoB, cv.MomentoB), Mayorar(generales, cp.CorteB, cv.CorteB)};
}

MomentoDeTramo MomentoMaximo(const Tramo& tramo, const TramoMayorado& mayorado,
                             const ExtremosMayorados& extremos) {
    if (mayorado.P != 0 && tramo.L1 != 0 && tramo.L1 != tramo.LT)
        return MomentoConPuntual(mayorado, extremos);
    const double x = mayorado.w != 0 ? extremos.Vi / mayorado.w : 0;
    const double redondeado = Round(x, 3);
    if (!(redondeado > 0 && redondeado < mayorado.Ls)) return {0, 0};
    return {x * extremos.Vi - mayorado.w * (x * x) / 2 + extremos.Mi, x};
}

PuntosInflexion CalcularInflexion(const Tramo& tramo, const DatosGenerales& generales, double V, double M,
                                  double C) {
    const TramoMayorado mayorado = MayorarTramo(tramo, generales, C);
    if (tramo.p1 != 0 && tramo.L1 != 0 && tramo.L1 != tramo.LT) return InflexionConPuntual(mayorado, V, M);
    if (mayorado.w == 0) return {};
    const double A = -mayorado.w / 2;
    const double B = std::fabs(V);
    const double discriminante = B * B - 4 * A * M;
    if (!(discriminante > 0)) return {};
    const double raiz = std::sqrt(discriminante);
    return {(-B - raiz) / (A + A), (-B + raiz) / (A + A)};
}

void EsfuerzosEnSeccion(const Tramo& tramo, const DatosGenerales& generales, double xh, double C, double M0,
                        double V0, EstacionPuntual& estacion, double& M, double& V) {
    const double x = xh / C;
    const TramoMayorado mayorado = MayorarTramo(tramo, generales, C);
    double m = mayorado.w * (x * x) / 2;
    double v = mayorado.w * x;
    if (mayorado.P != 0 && mayorado.a > 0 && mayorado.a < tramo.LT && x >= mayorado.a) {
        estacion.RepitaEstacion = !estacion.HayPuntual;
        if (estacion.HayPuntual) {
            v += mayorado.P;
            m += (x - mayorado.a) * mayorado.P;
        }
        estacion.HayPuntual = true;
    }
    M = x * V0 + M0 - m;
    V = V0 - v;
}

}  // namespace trabex::losas
