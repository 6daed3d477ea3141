#include "helical/EstaticaEscaleraH.h"

#include <cmath>

#include "base/Angulos.h"

namespace trabex::helices {

double LargoEnPlanta(const DatosEscaleraH& escalera) {
    return escalera.R * DosPi * escalera.Angulo / 360;
}

double PendienteEnGrados(const DatosEscaleraH& escalera, double L) {
    return EnGrados(std::atan(escalera.H / L));
}

CalculoEstaticoH::CalculoEstaticoH(const DatosEscaleraH& e, double Alfa)
    : R_(e.R),
      W_(e.W),
      seno_(std::sin(EnRadianes(Alfa))),
      coseno_(std::cos(EnRadianes(Alfa))),
      tangente_(std::tan(EnRadianes(Alfa))) {
    const double I1 = std::pow(e.T, 3) * e.B / 12;
    const double I2 = std::pow(e.B, 3) * e.T / 12;
    const double Lr = e.B * e.B / (12 * e.R);
    const double Rr = Lr / e.R;
    c0_ = -(Rr + 1);
    incognitas_ = Resolver(EnRadianes(e.Angulo / 2), I1 / I2, Rr);
}

/// The flexibility system A·X + C·Y = −E, C·X + D·Y = −F over a half flight of φ, by Cramer's rule.
HiperestaticasHelice CalculoEstaticoH::Resolver(double fi, double m, double Rr) const {
    const double K = (1 - 0.5 * coseno_ * coseno_) * (1 - m);
    const double s2 = std::sin(2 * fi);
    const double c2 = std::cos(2 * fi);
    const double seno = std::sin(fi);
    const double coseno = std::cos(fi);
    const double fi2 = fi * fi;
    const double A = (std::pow(fi, 3) * (2 - K) / 3 - fi2 * (K / 2) * s2 -
                      ((2 - 3 * K - 2 * m) / 4) * (s2 - 2 * fi * c2)) *
                         (tangente_ * tangente_) +
                     (((2 * K - 1) + 3 * m) / 4) * (2 * fi - s2);
    const double C = (-1.0 / 4) * tangente_ * (2 * (1 - K - m) * (2 * fi - s2) + K * (s2 - 2 * fi * c2));
    const double D = (K / 2) * s2 + (2 - K) * fi;
    const double E = 2 * tangente_ * ((4 - 3 * K - m + Rr) * (seno - fi * coseno) - fi2 * (1 - K) * seno);
    const double F = 2 * ((1 - K) * fi * coseno - (Rr + 2 - K) * seno);
    const double denominador = D * A - C * C;
    return {-(E * D - C * F) / denominador, -(A * F - E * C) / denominador};
}

double CalculoEstaticoH::N(double teta) const {
    return (seno_ * teta - coseno_ * incognitas_.X * std::sin(teta)) * W_ * R_;
}

double CalculoEstaticoH::QX(double teta) const {
    return (coseno_ * teta + seno_ * incognitas_.X * std::sin(teta)) * W_ * R_;
}

void CalculoEstaticoH::EsfuerzosEn(double teta, const Pasos& pasos, EstacionEscaleraH& estacion) const {
    const double X = incognitas_.X;
    const double Y = incognitas_.Y;
    const double seno = std::sin(teta);
    const double coseno = std::cos(teta);
    const double WR2 = pasos([&] { return R_ * R_ * W_; });
    estacion.N = pasos([&] { return N(teta); });
    estacion.QX = pasos([&] { return QX(teta); });
    estacion.QY = pasos([&] { return coseno * X * W_ * R_; });
    estacion.MT = pasos([&] {
        return WR2 * (coseno_ * teta - coseno_ * Y * seno - seno_ * X * teta * coseno + seno_ * X * seno);
    });
    estacion.MX = pasos([&] { return WR2 * (c0_ - tangente_ * X * teta * seno + coseno * Y); });
    (estacion.MX < 0 ? estacion.MS1 : estacion.MI1) = estacion.MX;
    estacion.MY = pasos([&] {
        return WR2 * (-seno_ * teta + seno_ * Y * seno + tangente_ * seno_ * X * teta * coseno +
                      coseno_ * X * seno);
    });
}

}  // namespace trabex::helices
