#include "stairs/DisenoEscaleraT.h"

#include <algorithm>
#include <cmath>

#include "base/Angulos.h"
#include "base/EstribosTorsion.h"

namespace trabex::escaleras {

namespace {

constexpr double PasoABarraMayor = 10;  // cm: closer stirrups are built with the larger bar

/// Factored torsion of a station, in the units that come of its product with a length.
double TorsionAcumulada(double Torsor, const EstaticaEscaleraT& estatica, double X,
                        const DatosEscaleraT& escalera, double FS) {
    const double coseno = std::cos(estatica.Alfa);
    const double Ls = escalera.L / coseno;
    const double Cuarto = ((escalera.B / 2) * DosPi) / 4;
    const double Td = std::fabs((estatica.MomentoHorizontal * 0.5) * Cuarto);
    const double Tq = FS * Torsor;
    return std::fabs(Ls * Tq - (X / coseno) * Tq) - Td;
}

/// Steel of a face that has another demand already.
void Aumentar(double& As, double otra) {
    if (As < otra) As = otra;
}

}  // namespace

EstribosTramo CalculeEstribos(double Corte, double Torsor, const EstaticaEscaleraT& estatica, double X,
                              const DatosEscaleraT& escalera, const DatosGenerales& generales, double& Area,
                              const Pasos& pasos) {
    const auto seccion = pasos([&] { return SeccionTorsion(escalera.B, escalera.HT, generales.D8); });
    const double Tu = pasos([&] { return TorsionAcumulada(Torsor, estatica, X, escalera, generales.FS); });
    if (pasos.SeCuentan())
        pasos.Contar("Tu", "|(L − X)/cos α·{FS}·{T}| − |{Mh}/2·(B/2)·π/2|",
                     {{"FS", generales.FS}, {"T", Torsor}, {"Mh", estatica.MomentoHorizontal}}, Tu, "kgf·m");
    const double V = pasos([&] { return generales.FS * Corte; });
    if (pasos.SeCuentan())
        pasos.Contar("V", "{FS}·{Corte}", {{"FS", generales.FS}, {"Corte", Corte}}, V, "kgf");
    double s = SeparacionMaxima;
    if (const auto r = SeparacionPorArea(seccion, Tu, V, generales, pasos)) {
        Area = *r * Barra3_8 < PasoABarraMayor ? Barra1_2 : Barra3_8;
        s = pasos([&] { return *r * Area; });
    }
    s = std::min({s, SeparacionPorTamano(seccion), SeparacionMaxima});
    if (pasos.SeCuentan())
        pasos.Contar("s", "menor de s/A·{A}, (x1 + y1)/4 = {s2}, 30",
                     {{"A", Area}, {"s2", SeparacionPorTamano(seccion)}}, s, "cm");
    const double longitudinal = pasos([&] { return (((seccion.y1 + seccion.x1) * (2 * Barra3_8)) / s) / 2; });
    if (pasos.SeCuentan())
        pasos.Contar("Al", "2·0.71·({x1} + {y1})/{s}/2", {{"x1", seccion.x1}, {"y1", seccion.y1}, {"s", s}},
                     longitudinal, "cm²");
    return {s, longitudinal};
}

void DisenarFlexionTramo(const DatosEscaleraT& escalera, const DatosGenerales& generales, const Pasos& pasos,
                         EscaleraTramoPunto& punto) {
    const AceroCaras negativa =
        CalculeRefuerzoEscalera(punto.EnvolventeNegativa, escalera.B, escalera.HT, generales, pasos);
    punto.AsSuperior = negativa.AsSup;
    punto.AsInferior = negativa.AsInf;
    const AceroCaras positiva =
        CalculeRefuerzoEscalera(punto.EnvolventePositiva, escalera.B, escalera.HT, generales, pasos);
    Aumentar(punto.AsSuperior, positiva.AsSup);
    Aumentar(punto.AsInferior, positiva.AsInf);
    // The lateral moment bends the section about its other axis: width and height change places.
    punto.AsY =
        CalculeRefuerzoEscalera(std::fabs(punto.MomentoY), escalera.HT, escalera.B, generales, pasos).AsInf;
}

void DisenarDescanso(const DatosEscaleraT& escalera, const DatosGenerales& generales, const Pasos& pasos,
                     EscaleraDescansoPunto& punto) {
    const AceroCaras As =
        CalculeRefuerzoEscalera(punto.MomentoTotal, escalera.B, escalera.Hd, generales, pasos);
    punto.AsSuperior = As.AsSup;
    punto.AsInferior = As.AsInf;
    punto.AsY = CalculeRefuerzoEscalera(punto.MomentoY, escalera.Hd, escalera.B, generales, pasos).AsInf;
    punto.TensionCorte = pasos([&] {
        const double t = escalera.Hd * 100;
        const double dl = (escalera.B - generales.D8) * 100;
        return (std::fabs(punto.CorteY) * generales.FS) / ((t * FiCorteYTorsion) * dl);
    });
    punto.TensionAdmisible = pasos([&] { return std::sqrt(static_cast<double>(generales.FC)) * 0.53; });
    if (pasos.SeCuentan())
        pasos.Contar("vu", "{FS}·{VY}/(0.85·{Hd}·({B} − {D8}))",
                     {{"FS", generales.FS},
                      {"VY", std::fabs(punto.CorteY)},
                      {"Hd", escalera.Hd * 100},
                      {"B", escalera.B * 100},
                      {"D8", generales.D8 * 100}},
                     punto.TensionCorte, "kgf/cm²");
    if (pasos.SeCuentan())
        pasos.Contar("vadm", "0.53·√{F'c}", {{"F'c", static_cast<double>(generales.FC)}},
                     punto.TensionAdmisible, "kgf/cm²");
    if (punto.TensionAdmisible < punto.TensionCorte) punto.FallaCorte = TextoFallaCorte;
}

}  // namespace trabex::escaleras
