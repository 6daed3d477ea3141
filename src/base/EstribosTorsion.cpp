#include "base/EstribosTorsion.h"

#include <algorithm>
#include <cmath>

namespace trabex {

namespace {

double TorsionDelConcreto(const SeccionTorsion& s, double Tu, double V, double FC) {
    const double Ct = (s.d * s.b) / s.Sum;
    const double razon = (V * 0.4) / ((Tu * Ct) * 100);
    return (((std::sqrt(FC) * 0.21) * s.Sum) / std::pow(1 + std::pow(razon, 2), 0.5)) / 100;
}

double Alfat(const SeccionTorsion& s) {
    return std::min(s.b > s.h ? 0.66 + (s.x1 * 0.33) / s.y1 : 0.66 + (s.y1 * 0.33) / s.x1, 1.5);
}

}  // namespace

SeccionTorsion::SeccionTorsion(double Ancho, double Alto, double D8) {
    const double rec = D8 * 100;
    b = Ancho * 100;
    h = Alto * 100;
    d = h - rec;
    x1 = b - (rec + rec);
    y1 = h - (rec + rec);
    Sum = b < h ? b * b * h : h * h * b;
}

std::optional<double> SeparacionPorArea(const SeccionTorsion& s, double Tu, double V,
                                        const DatosGenerales& generales, const Pasos& pasos) {
    const double FC = generales.FC;
    const double Tn = pasos([&] { return Tu / FiCorteYTorsion; });
    if (pasos.SeCuentan()) pasos.Contar("Tn", "{Tu}/0.85", {{"Tu", Tu}}, Tn, "kgf·m");
    const double Tlim = pasos([&] { return ((std::sqrt(FC) * 0.13) * s.Sum) / 100; });
    if (pasos.SeCuentan())
        pasos.Contar("Tlim", "0.13·√{F'c}·{Σx²y}/100", {{"F'c", FC}, {"Σx²y", s.Sum}}, Tlim, "kgf·m");
    if (Tn < Tlim) return {};
    const double Tc = pasos([&] { return TorsionDelConcreto(s, Tu, V, FC); });
    if (pasos.SeCuentan())
        pasos.Contar("Tc", "0.21·√{F'c}·{Σx²y}/√(1 + (0.4·{V}/(100·{Tu}·{Ct}))²)/100",
                     {{"F'c", FC}, {"Σx²y", s.Sum}, {"V", V}, {"Tu", Tu}, {"Ct", (s.d * s.b) / s.Sum}}, Tc,
                     "kgf·m");
    const double Ts = pasos([&] { return Tn - Tc; });
    if (pasos.SeCuentan()) pasos.Contar("Ts", "{Tn} − {Tc}", {{"Tn", Tn}, {"Tc", Tc}}, Ts, "kgf·m");
    if (Ts < 0) return {};
    const double at = pasos([&] { return Alfat(s); });
    if (pasos.SeCuentan())
        pasos.Contar("αt", "0.66 + 0.33·{y1}/{x1} ≤ 1.5",
                     {{"y1", s.b > s.h ? s.x1 : s.y1}, {"x1", s.b > s.h ? s.y1 : s.x1}}, at, "");
    const double porArea = pasos([&] { return ((at * s.x1 * s.y1) * generales.FY) / (Ts * 100); });
    if (pasos.SeCuentan())
        pasos.Contar(
            "s/A", "{αt}·{x1}·{y1}·{Fy}/(100·{Ts})",
            {{"αt", at}, {"x1", s.x1}, {"y1", s.y1}, {"Fy", static_cast<double>(generales.FY)}, {"Ts", Ts}},
            porArea, "cm/cm²");
    return porArea;
}

double SeparacionPorTamano(const SeccionTorsion& s) {
    return (s.y1 + s.x1) / 4;
}

}  // namespace trabex
