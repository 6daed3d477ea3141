#include "base/RefuerzoFlexion.h"

#include <algorithm>
#include <cmath>

namespace trabex {

namespace {

/// Steel in tension alone, at or below the limit moment.
double SoloTraccion(double Mu, double b, double d, double fc, double fy, const Pasos& pasos) {
    const double q = Mu / (d * d * (fc * b));
    if (pasos.SeCuentan())
        pasos.Contar("q", "{Mu}/({b}·{d}²·{F'c})", {{"Mu", Mu}, {"b", b}, {"d", d}, {"F'c", fc}}, q, "");
    const double r = 1 - (q + q) / 0.85;
    if (r < 0) return 0;
    const double w = (1 - std::sqrt(r)) * 0.85;
    if (pasos.SeCuentan()) pasos.Contar("ω", "0.85·(1 − √(1 − 2·{q}/0.85))", {{"q", q}}, w, "");
    const double j = 1 - w * 0.59;
    if (pasos.SeCuentan()) pasos.Contar("j", "1 − 0.59·{ω}", {{"ω", w}}, j, "");
    const double As = Mu / ((fy * j) * d);
    if (pasos.SeCuentan())
        pasos.Contar("As", "{Mu}/({Fy}·{j}·{d})", {{"Mu", Mu}, {"Fy", fy}, {"j", j}, {"d", d}}, As, "cm²");
    return As;
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
    if (pasos.SeCuentan()) pasos.Contar("d", "{h} − {r}", {{"h", seccion.h}, {"r", rec}}, d, "cm");
    const double Mlim = pasos([&] { return d * d * (((fc * 0.2) * 0.882) * b); });
    if (pasos.SeCuentan())
        pasos.Contar("Mlim", "0.2·0.882·{F'c}·{b}·{d}²", {{"F'c", fc}, {"b", b}, {"d", d}}, Mlim, "kgf·cm");
    if (!(Mu > Mlim)) return {pasos([&] { return SoloTraccion(Mu, b, d, fc, fy, pasos); }), 0};

    const double As1 = pasos([&] { return Mlim / ((fy * 0.882) * d); });
    if (pasos.SeCuentan())
        pasos.Contar("As1", "{Mlim}/(0.882·{Fy}·{d})", {{"Mlim", Mlim}, {"Fy", fy}, {"d", d}}, As1, "cm²");
    const double Mr = pasos([&] { return Mu - Mlim; });
    if (pasos.SeCuentan()) pasos.Contar("Mr", "{Mu} − {Mlim}", {{"Mu", Mu}, {"Mlim", Mlim}}, Mr, "kgf·cm");
    const double As2 = pasos([&] { return Mr / ((d - rec) * fy); });
    if (pasos.SeCuentan())
        pasos.Contar("As2", "{Mr}/({Fy}·({d} − {r}))", {{"Mr", Mr}, {"Fy", fy}, {"d", d}, {"r", rec}}, As2,
                     "cm²");
    const double Ast = pasos([&] { return As1 + As2; });
    if (pasos.SeCuentan()) pasos.Contar("As", "{As1} + {As2}", {{"As1", As1}, {"As2", As2}}, Ast, "cm²");
    const double c = pasos([&] { return EjeNeutroLimite(d, materiales.FC); });
    if (pasos.SeCuentan()) pasos.Contar("c", "0.2·{d}/(0.85·β1)", {{"d", d}}, c, "cm");
    const double fs = pasos([&] { return std::min(((c - rec) * 6300) / c, fy); });
    if (pasos.SeCuentan())
        pasos.Contar("f's", "6300·({c} − {r})/{c} ≤ {Fy}", {{"c", c}, {"r", rec}, {"Fy", fy}}, fs, "kgf/cm²");
    const double Asc = pasos([&] { return Mr / ((d - rec) * fs); });
    if (pasos.SeCuentan())
        pasos.Contar("A's", "{Mr}/({f's}·({d} − {r}))", {{"Mr", Mr}, {"f's", fs}, {"d", d}, {"r", rec}}, Asc,
                     "cm²");
    return {Ast, Asc};
}

AceroCaras RepartirEnCaras(double M, const AcerosFlexion& As) {
    if (M > 0) return {As.Compresion, As.Traccion};
    return {As.Traccion, As.Compresion};
}

}  // namespace trabex
