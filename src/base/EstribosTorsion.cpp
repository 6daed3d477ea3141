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
    const double Tlim = pasos([&] { return ((std::sqrt(FC) * 0.13) * s.Sum) / 100; });
    if (Tn < Tlim) return {};
    const double Ts = pasos([&] { return Tn - TorsionDelConcreto(s, Tu, V, FC); });
    if (Ts < 0) return {};
    const double at = pasos([&] { return Alfat(s); });
    return pasos([&] { return ((at * s.x1 * s.y1) * generales.FY) / (Ts * 100); });
}

double SeparacionPorTamano(const SeccionTorsion& s) {
    return (s.y1 + s.x1) / 4;
}

}  // namespace trabex
