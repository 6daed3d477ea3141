#include "slab/Barra.h"

#include <cmath>

#include "base/Round.h"

namespace trabex::losas {

namespace {

constexpr int DecimalesEsfuerzo = 8;

/// Adds a point load, always permanent, to the terms of the uniform load.
void SumarPuntual(const Tramo& tramo, const Barra& barra, ExtremosFijos& f) {
    const double L = barra.L;
    const double P = tramo.p1 * barra.CX;
    const double Pa = tramo.p1 * barra.CY;
    const double a = tramo.L1 / barra.CX;
    const double c = L - a;
    f.M0A[0] += a * P * (c * c) / (L * L);
    f.M0B[0] += P * c * (a * a) / (L * L);
    f.VA0[0] += P * c / L - (f.M0B[0] - f.M0A[0]) / L;
    f.VB0[0] += a * P / L + (f.M0B[0] - f.M0A[0]) / L;
    f.NA0[0] += Pa * c / L;
    f.NB0[0] += a * Pa / L;
}

}  // namespace

Rigidez RigidezDe(const Losa& losa, std::int16_t FC) {
    const double E = 15100 * std::sqrt(static_cast<double>(FC)) * 10000;
    const auto [b, h] = SeccionDeCalculo(losa);
    return {E * (b * h), E * (h * h * h * b / 12)};
}

Barra FormarBarra(double dx, double dy, const Rigidez& rigidez) {
    const double L = std::sqrt(dx * dx + dy * dy);
    const double k2 = 2 * rigidez.EI / L;
    const double k6 = 3 * k2 / L;
    return {L,  L > 0 ? dx / L : 0, L > 0 ? dy / L : 0, L * L / 12, rigidez.EA / L, k2, 2 * k2,
            k6, 2 * k6 / L};
}

MatrizElemento RigidezGlobal(const Barra& b) {
    const double k11 = b.CY * b.CY * b.k12 + b.CX * b.CX * b.axial;
    const double k12 = -(b.CX * b.CY * b.k12 - b.CX * b.CY * b.axial);
    const double k22 = b.CX * b.CX * b.k12 + b.CY * b.CY * b.axial;
    const double k13 = b.CY * b.k6;
    const double k23 = -b.CX * b.k6;
    return {{{k11, k12, k13, -k11, -k12, k13},
             {k12, k22, k23, -k12, -k22, k23},
             {k13, k23, b.k4, -k13, -k23, b.k2},
             {-k11, -k12, -k13, k11, k12, -k13},
             {-k12, -k22, -k23, k12, k22, -k23},
             {k13, k23, b.k2, -k13, -k23, b.k4}}};
}

ExtremosFijos ExtremosFijosDe(const Tramo& tramo, const Barra& barra, const ParDeCasos& casos) {
    const ParDeCasos w0{casos[0] * tramo.Wp, casos[1] * tramo.WV};
    const ParDeCasos w = barra.CX * w0;
    const ParDeCasos corte = (barra.L / 2) * w;
    const ParDeCasos momento = barra.L2_12 * w;
    const ParDeCasos axial = (barra.CY * barra.L / 2) * w0;
    ExtremosFijos f{momento, momento, corte, corte, axial, axial};
    const bool puntual = tramo.p1 != 0 && 0 < tramo.L1 && tramo.L1 < tramo.LT;
    if (puntual && casos[0] != 0) SumarPuntual(tramo, barra, f);
    return f;
}

EsfuerzosPorCaso EsfuerzosDe(const Barra& b, const ExtremosFijos& f, const ParDeCasos* d) {
    const ParDeCasos u1 = b.CX * d[0] + b.CY * d[1];
    const ParDeCasos v1 = b.CX * d[1] - b.CY * d[0];
    const ParDeCasos u2 = b.CX * d[3] + b.CY * d[4];
    const ParDeCasos v2 = b.CX * d[4] - b.CY * d[3];
    const ParDeCasos axial = b.axial * (u2 - u1);
    const ParDeCasos desnivel = b.k6 * (v1 - v2);
    const ParDeCasos corte = b.k12 * (v1 - v2) - b.k6 * (d[2] + d[5]);
    const ParDeCasos MA = desnivel - b.k4 * d[2] - b.k2 * d[5] - f.M0A;
    const ParDeCasos VA = f.VA0 - corte;
    const ParDeCasos NA = axial + f.NA0;
    const ParDeCasos MB = b.k2 * d[2] + b.k4 * d[5] - desnivel - f.M0B;
    const ParDeCasos VB = f.VB0 + corte;
    const ParDeCasos NB = axial - f.NB0;
    std::array<double, 12> e{MA[0], VA[0], NA[0], MB[0], VB[0], NB[0],
                             MA[1], VA[1], NA[1], MB[1], VB[1], NB[1]};
    RoundTodos(e, DecimalesEsfuerzo);
    return {{{e[0], e[1], e[2], e[3], e[4], e[5]}, {e[6], e[7], e[8], e[9], e[10], e[11]}}};
}

}  // namespace trabex::losas
