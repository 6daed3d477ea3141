#include "stairs/DisenoEscaleraT.h"

#include <cmath>

namespace trabex::escaleras {

namespace {

constexpr double FiTorsion = 0.85;
constexpr double BarraMenor = 0.71;      // one leg of 3/8", cm²
constexpr double BarraMayor = 1.27;      // one leg of 1/2"
constexpr double SeparacionMaxima = 30;  // cm
constexpr double PasoABarraMayor = 10;   // cm: closer stirrups are built with the larger bar

/// The flight's section in cm, and what torsion reads of it.
struct SeccionTorsion {
    SeccionTorsion(const DatosEscaleraT& escalera, double D8) {
        const double rec = D8 * 100;
        b = escalera.B * 100;
        h = escalera.HT * 100;
        d = h - rec;
        x1 = b - (rec + rec);
        y1 = h - (rec + rec);
        Sum = b < h ? b * b * h : h * h * b;
    }
    double b, h, d;
    double x1, y1;  ///< sides of the stirrup
    double Sum;     ///< smaller side squared times the greater, cm³
};

/// Factored torsion of a station, in the units that come of its product with a length.
double TorsionAcumulada(double Torsor, const EstaticaEscaleraT& estatica, double X,
                        const DatosEscaleraT& escalera, double FS) {
    const double coseno = std::cos(estatica.Alfa);
    const double Ls = escalera.L / coseno;
    const double Cuarto = ((escalera.B / 2) * 6.28318530717958) / 4;
    const double Td = std::fabs((estatica.MomentoHorizontal * 0.5) * Cuarto);
    const double Tq = FS * Torsor;
    return std::fabs(Ls * Tq - (X / coseno) * Tq) - Td;
}

/// Torsion that the concrete takes beside the factored shear V.
double TorsionDelConcreto(double Tu, double V, const SeccionTorsion& s, double FC) {
    const double Ct = (s.d * s.b) / s.Sum;
    const double razon = (V * 0.4) / ((Tu * Ct) * 100);
    return (((std::sqrt(FC) * 0.21) * s.Sum) / std::pow(1 + std::pow(razon, 2), 0.5)) / 100;
}

/// Spacing that carries a torsion Ts; chooses the bar.
double SeparacionPorTorsion(double Ts, const SeccionTorsion& s, double FY, double& Area) {
    double at = s.b > s.h ? 0.66 + (s.x1 * 0.33) / s.y1 : 0.66 + (s.y1 * 0.33) / s.x1;
    if (at > 1.5) at = 1.5;
    const double r = ((at * s.x1 * s.y1) * FY) / (Ts * 100);
    Area = r * BarraMenor < PasoABarraMayor ? BarraMayor : BarraMenor;
    return r * Area;
}

}  // namespace

EstribosTramo CalculeEstribos(double Corte, double Torsor, const EstaticaEscaleraT& estatica, double X,
                              const DatosEscaleraT& escalera, const DatosGenerales& generales, double& Area) {
    const SeccionTorsion seccion(escalera, generales.D8);
    const double V = generales.FS * Corte;
    const double Tu = TorsionAcumulada(Torsor, estatica, X, escalera, generales.FS);
    const double Tn = Tu / FiTorsion;
    const double Tlim = ((std::sqrt(static_cast<double>(generales.FC)) * 0.13) * seccion.Sum) / 100;
    double s = SeparacionMaxima;
    if (!(Tn < Tlim)) {
        const double Ts = Tn - TorsionDelConcreto(Tu, V, seccion, generales.FC);
        if (!(Ts < 0)) s = SeparacionPorTorsion(Ts, seccion, generales.FY, Area);
    }
    const double Smax = (seccion.y1 + seccion.x1) / 4;
    if (s > Smax) s = Smax;
    if (s > SeparacionMaxima) s = SeparacionMaxima;
    return {s, (((seccion.y1 + seccion.x1) * 1.42) / s) / 2};
}

void DisenarFlexionTramo(const DatosEscaleraT& escalera, const DatosGenerales& generales,
                         EscaleraTramoPunto& punto) {
    const AceroCaras negativa =
        CalculeRefuerzoEscalera(punto.EnvolventeNegativa, escalera.B, escalera.HT, generales);
    punto.AsSuperior = negativa.AsSup;
    punto.AsInferior = negativa.AsInf;
    const AceroCaras positiva =
        CalculeRefuerzoEscalera(punto.EnvolventePositiva, escalera.B, escalera.HT, generales);
    if (punto.AsSuperior < positiva.AsSup) punto.AsSuperior = positiva.AsSup;
    if (punto.AsInferior < positiva.AsInf) punto.AsInferior = positiva.AsInf;
    // The lateral moment bends the section about its other axis: width and height change places.
    punto.AsY = CalculeRefuerzoEscalera(std::fabs(punto.MomentoY), escalera.HT, escalera.B, generales).AsInf;
}

void DisenarDescanso(const DatosEscaleraT& escalera, const DatosGenerales& generales,
                     EscaleraDescansoPunto& punto) {
    const AceroCaras As = CalculeRefuerzoEscalera(punto.MomentoTotal, escalera.B, escalera.Hd, generales);
    punto.AsSuperior = As.AsSup;
    punto.AsInferior = As.AsInf;
    punto.AsY = CalculeRefuerzoEscalera(punto.MomentoY, escalera.Hd, escalera.B, generales).AsInf;
    const double t = escalera.Hd * 100;
    const double dl = (escalera.B - generales.D8) * 100;
    punto.TensionCorte = (std::fabs(punto.CorteY) * generales.FS) / ((t * FiTorsion) * dl);
    punto.TensionAdmisible = std::sqrt(static_cast<double>(generales.FC)) * 0.53;
    punto.FallaCorte = punto.TensionAdmisible < punto.TensionCorte ? TextoFallaCorte : "";
}

}  // namespace trabex::escaleras
