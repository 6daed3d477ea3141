#include "base/RefuerzoFlexion.h"

#include <algorithm>
#include <cmath>

namespace trabex {

namespace {

/// Steel in tension alone, at or below the limit moment.
double SoloTraccion(double Mu, double b, double d, double fc, double fy) {
    const double q = Mu / (d * d * (fc * b));
    const double r = 1 - (q + q) / 0.85;
    if (r < 0) return 0;
    const double w = (1 - std::sqrt(r)) * 0.85;
    const double j = 1 - w * 0.59;
    return Mu / ((fy * j) * d);
}

/// Depth of the neutral axis at the limit moment.
double EjeNeutroLimite(double d, std::int16_t FC) {
    double beta = 0.85;
    if (FC > 280) beta = 0.85 - ((FC - 280) * 0.05) / 70;
    const double a = (d * 0.2) / 0.85;
    return a / beta;
}

}  // namespace

AcerosFlexion RefuerzoFlexion(double Mu, const SeccionFlexion& seccion, const Materiales& materiales,
                              const Pasos& pasos) {
    const double fc = materiales.FC;
    const double fy = materiales.FY;
    const double rec = seccion.Recubrimiento;
    const double b = seccion.b;
    const double d = seccion.h - rec;
    const double Mlim = pasos([&] { return d * d * (((fc * 0.2) * 0.882) * b); });
    if (!(Mu > Mlim)) return {pasos([&] { return SoloTraccion(Mu, b, d, fc, fy); }), 0};

    const double As1 = pasos([&] { return Mlim / ((fy * 0.882) * d); });
    const double Mr = pasos([&] { return Mu - Mlim; });
    const double As2 = pasos([&] { return Mr / ((d - rec) * fy); });
    const double Ast = pasos([&] { return As1 + As2; });
    const double c = pasos([&] { return EjeNeutroLimite(d, materiales.FC); });
    const double fs = pasos([&] { return std::min(((c - rec) * 6300) / c, fy); });
    return {Ast, pasos([&] { return Mr / ((d - rec) * fs); })};
}

AceroCaras RepartirEnCaras(double M, const AcerosFlexion& As) {
    if (M > 0) return {As.Compresion, As.Traccion};
    return {As.Traccion, As.Compresion};
}

}  // namespace trabex
