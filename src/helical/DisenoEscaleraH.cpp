#include "helical/DisenoEscaleraH.h"

#include <cmath>

#include "base/AceroMinimo.h"
#include "base/Enteros.h"
#include "base/Round.h"

namespace trabex::helices {

namespace {

constexpr double FiTorsion = 0.85;
constexpr double BarraMenor = 0.71;  // one leg of 3/8", cm²
constexpr double BarraMayor = 1.27;  // one leg of 1/2"
constexpr double SeparacionMaxima = 30;
constexpr double PasoABarraMayor = 8;

/// Torsion design of one section under fixed actions, in kgf and cm.
class Torsion {
  public:
    Torsion(double Cortante, double Torsor, double Ancho, double Alto, const DatosGenerales& g)
        : FC_(g.FC), FY_(g.FY) {
        const double rec = g.D8 * 100;
        b_ = Ancho * 100;
        h_ = Alto * 100;
        d_ = h_ - rec;
        x1_ = b_ - 2 * rec;
        y1_ = h_ - 2 * rec;
        V_ = std::fabs(Cortante) * g.FS;
        Tq_ = std::fabs(Torsor) * g.FS;
        Sum_ = b_ < h_ ? b_ * b_ * h_ : h_ * h_ * b_;
    }

    /// Spacing with a bar, capped.
    double Separacion(double Barra) const {
        double s = SinTope(Barra);
        const double Smax = Round((y1_ + x1_) / 4);
        if (s > Smax) s = Smax;
        if (s > SeparacionMaxima) s = SeparacionMaxima;
        return s;
    }

    double Longitudinal(double Barra, double s) const { return ((y1_ + x1_) * (2 * Barra)) / s; }

  private:
    double SinTope(double Barra) const {
        const double Tn = Tq_ / FiTorsion;
        const double Tlim = (std::sqrt(FC_) * 0.13 * Sum_) / 100;
        if (Tn < Tlim) return SeparacionMaxima;
        const double Ts = Tn - DelConcreto();
        if (Ts < 0) return SeparacionMaxima;
        double at = b_ > h_ ? 0.66 + (x1_ * 0.33) / y1_ : 0.66 + (y1_ * 0.33) / x1_;
        if (at > 1.5) at = 1.5;
        return Round((((at * x1_ * y1_) * FY_) / (Ts * 100)) * Barra);
    }

    /// Torsion that the concrete takes beside the shear.
    double DelConcreto() const {
        const double Ct = (d_ * b_) / Sum_;
        const double razon = (V_ * 0.4) / (Ct * Tq_ * 100);
        return ((std::sqrt(FC_) * 0.21 * Sum_) / std::sqrt(1 + razon * razon)) / 100;
    }

    double FC_, FY_;
    double b_, h_, d_;
    double x1_, y1_;  ///< sides of the stirrup
    double V_, Tq_;   ///< factored actions
    double Sum_;      ///< smaller side squared times the greater, cm³
};

}  // namespace

EstribosHelice EstribosEscalera(double Cortante, double Torsor, double Ancho, double Alto,
                                const DatosGenerales& generales) {
    const Torsion torsion(Cortante, Torsor, Ancho, Alto, generales);
    double barra = BarraMenor;
    double s = torsion.Separacion(barra);
    if (s < PasoABarraMayor) {
        barra = BarraMayor;
        s = torsion.Separacion(barra);
    }
    // What is no number has raised its own fault.
    const std::int16_t separacion = std::isnan(s) ? std::int16_t{0} : Redondear16(s);
    return {barra, separacion, torsion.Longitudinal(barra, s)};
}

double AceroMinimo(const DatosEscaleraH& escalera, const DatosGenerales& generales) {
    const double b = escalera.B * 100;
    const double d = (escalera.T - generales.D8) * 100;
    return b > d ? AceroMinimoDeLosa(b, d) : AceroMinimoDeViga(generales.FY, b, d);
}

}  // namespace trabex::helices
