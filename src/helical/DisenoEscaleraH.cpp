#include "helical/DisenoEscaleraH.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "base/AceroMinimo.h"
#include "base/Enteros.h"
#include "base/EstribosTorsion.h"

namespace trabex::helices {

namespace {

constexpr double PasoABarraMayor = 8;  // cm: closer stirrups are built with the larger bar

/// Whole spacing of stirrups of a bar, for the spacing per area that torsion asks for.
double SeparacionEntera(const std::optional<double>& porArea, double Barra, const SeccionTorsion& seccion,
                        const Pasos& pasos) {
    const double s = porArea ? pasos([&] { return Round(*porArea * Barra); }) : SeparacionMaxima;
    return std::min({s, Round(SeparacionPorTamano(seccion)), SeparacionMaxima});
}

}  // namespace

EstribosHelice EstribosEscalera(double Cortante, double Torsion, double Ancho, double Alto,
                                const DatosGenerales& generales, const Pasos& pasos) {
    const auto seccion = pasos([&] { return SeccionTorsion(Ancho, Alto, generales.D8); });
    const double V = pasos([&] { return std::fabs(Cortante) * generales.FS; });
    const double Tq = pasos([&] { return std::fabs(Torsion) * generales.FS; });
    if (pasos.SeCuentan())
        pasos.Contar("V", "{FS}·{Q}", {{"FS", generales.FS}, {"Q", std::fabs(Cortante)}}, V, "kgf");
    if (pasos.SeCuentan())
        pasos.Contar("Tu", "{FS}·{T}", {{"FS", generales.FS}, {"T", std::fabs(Torsion)}}, Tq, "kgf·m");
    const std::optional<double> porArea = SeparacionPorArea(seccion, Tq, V, generales, pasos);
    double barra = Barra3_8;
    double s = SeparacionEntera(porArea, barra, seccion, pasos);
    if (s < PasoABarraMayor) {
        barra = Barra1_2;
        s = SeparacionEntera(porArea, barra, seccion, pasos);
    }
    if (pasos.SeCuentan())
        pasos.Contar("s", "menor de s/A·{A}, (x1 + y1)/4 = {s2}, 30 (entero)",
                     {{"A", barra}, {"s2", SeparacionPorTamano(seccion)}}, s, "cm");
    const double longitudinal = pasos([&] { return ((seccion.y1 + seccion.x1) * (2 * barra)) / s; });
    if (pasos.SeCuentan())
        pasos.Contar("Al", "2·{A}·({x1} + {y1})/{s}",
                     {{"A", barra}, {"x1", seccion.x1}, {"y1", seccion.y1}, {"s", s}}, longitudinal, "cm²");
    return {barra, Redondear16(s), longitudinal};
}

double AceroMinimo(const DatosEscaleraH& escalera, const DatosGenerales& generales) {
    const double b = escalera.B * 100;
    const double d = (escalera.T - generales.D8) * 100;
    return b > d ? AceroMinimoDeLosa(b, d) : AceroMinimoDeViga(generales.FY, b, d);
}

}  // namespace trabex::helices
