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
    const double V = pasos([&] { return generales.FS * Corte; });
    double s = SeparacionMaxima;
    if (const auto r = SeparacionPorArea(seccion, Tu, V, generales, pasos)) {
        Area = *r * Barra3_8 < PasoABarraMayor ? Barra1_2 : Barra3_8;
        s = pasos([&] { return *r * Area; });
    }
    s = std::min({s, SeparacionPorTamano(seccion), SeparacionMaxima});
    return {s, pasos([&] { return (((seccion.y1 + seccion.x1) * (2 * Barra3_8)) / s) / 2; })};
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
    if (punto.TensionAdmisible < punto.TensionCorte) punto.FallaCorte = TextoFallaCorte;
}

}  // namespace trabex::escaleras
