#include "stairs/EstaticaEscaleraT.h"

#include <cmath>

namespace trabex::escaleras {

namespace {

// Multiples of 3.14159265358979.
constexpr double TresPi = 9.42477796076937;
constexpr double SeisPi = 18.84955592153874;
constexpr double NuevePi = 28.27433388230811;
constexpr double DieciochoPi = 56.54866776461622;

void EnvolverMomento(double M, EscaleraTramoPunto& punto) {
    if (M > 0) {
        if (punto.EnvolventePositiva < M) punto.EnvolventePositiva = M;
    } else if (punto.EnvolventeNegativa > M) {
        punto.EnvolventeNegativa = M;
    }
}

}  // namespace

CalculoEstaticoT::CalculoEstaticoT(const DatosEscaleraT& escalera)
    : L_(escalera.L),
      B_(escalera.B),
      WT_(escalera.WT),
      Wd_(escalera.Wd),
      WpD_(escalera.WpD),
      Hh_(escalera.H / 2),
      Bh_(escalera.B / 2) {
    estatica_.Alfa = std::atan(Hh_ / L_);
    seno_ = std::sin(estatica_.Alfa);
    coseno_ = std::cos(estatica_.Alfa);
    tangente_ = std::tan(estatica_.Alfa);
    FormarCoeficientes(Bh_ / L_);
    FormarMomentos();
}

void CalculoEstaticoT::FormarCoeficientes(double k) {
    EstaticaEscaleraT& e = estatica_;
    const double c = coseno_;
    const double k2 = k * k;
    const double k3 = std::pow(k, 3);
    const double c2 = c * c;
    e.Denominador = c2 * (k3 * NuevePi) + (k * SeisPi + c * 8);
    e.CoefMomento = (c2 * (k3 * DieciochoPi) + (k * TresPi + c * 4)) * (1 / (e.Denominador * 4));
    e.CoefLateral = ((k * 3) * c) / e.Denominador;
    e.CoefDescanso = ((k2 + k2) * (((c2 * (k2 * NuevePi)) * (k + 1) - k * TresPi) - c * 4)) / e.Denominador;
    e.CoefLateralDescanso = (((k2 * 8) * (k * 3 + 2)) * c) / e.Denominador;
}

void CalculoEstaticoT::FormarMomentos() {
    EstaticaEscaleraT& e = estatica_;
    const double L2 = L_ * L_;
    const double T1 = -(L2 * (e.CoefMomento * WT_));
    const double T2 = -(L2 * (WT_ * e.CoefLateral));
    const double T3 = -(L2 * (Wd_ * e.CoefDescanso));
    const double T4 = -(L2 * (Wd_ * e.CoefLateralDescanso));
    const double T5 = -(L2 * (WpD_ * e.CoefDescanso));
    e.MomentoApoyoTotal = T3 + T1;
    e.MomentoHorizontal = T4 + T2;
    e.MomentoApoyoPermanente = T1 + T5;
    e.EmpujeFlexion = P() + Q(Wd_) + e.MomentoApoyoTotal / Hh_;
}

/// Horizontal force that the flight's load asks for.
double CalculoEstaticoT::P() const {
    return (L_ * L_ * WT_) / (Hh_ + Hh_);
}

/// Horizontal force that a landing load W asks for.
double CalculoEstaticoT::Q(double W) const {
    return (((L_ + L_) + B_) * (W * B_)) / (Hh_ + Hh_);
}

double CalculoEstaticoT::Momento(double X, double W, double momentoApoyo) const {
    return P() * X * tangente_ - X * X * (WT_ * 0.5) + Q(W) * X * tangente_ - (B_ / 2 + X) * (W * B_) +
           (tangente_ * X * momentoApoyo) / Hh_;
}

double CalculoEstaticoT::Corte(double X, double W, double momentoApoyo) const {
    return -(L_ * L_ * WT_ * seno_) / (Hh_ + Hh_) + (WT_ * X) * coseno_ -
           (((L_ + L_) + B_) * (W * B_) * seno_) / (Hh_ + Hh_) + (W * B_) * coseno_ -
           (seno_ * momentoApoyo) / Hh_;
}

EscaleraTramoPunto CalculoEstaticoT::EsfuerzosTramo(double X) const {
    const EstaticaEscaleraT& e = estatica_;
    EscaleraTramoPunto punto;
    punto.MomentoTotal = Momento(X, Wd_, e.MomentoApoyoTotal);
    punto.MomentoPermanente = Momento(X, WpD_, e.MomentoApoyoPermanente);
    punto.CorteTotal = Corte(X, Wd_, e.MomentoApoyoTotal);
    punto.CortePermanente = Corte(X, WpD_, e.MomentoApoyoPermanente);
    punto.Axial = (L_ * L_ * WT_ * coseno_) / (Hh_ + Hh_) + (WT_ * X) * seno_ +
                  (((L_ + L_) + B_) * (Wd_ * B_) * coseno_) / (Hh_ + Hh_) + (Wd_ * B_) * seno_ +
                  (coseno_ * e.MomentoApoyoTotal) / Hh_;
    punto.MomentoY = Bh_ * coseno_ * e.EmpujeFlexion - seno_ * e.MomentoHorizontal;
    punto.Torsor = Bh_ * seno_ * e.EmpujeFlexion + coseno_ * e.MomentoHorizontal;
    EnvolverMomento(punto.MomentoTotal, punto);
    EnvolverMomento(punto.MomentoPermanente, punto);
    return punto;
}

EscaleraDescansoPunto CalculoEstaticoT::EsfuerzosDescanso(double teta) const {
    const EstaticaEscaleraT& e = estatica_;
    const double seno = std::sin(teta);
    const double coseno = std::cos(teta);
    const double B2 = B_ * B_;
    EscaleraDescansoPunto punto;
    punto.MomentoTotal = -(B2 * Wd_ * seno) / 2 + coseno * e.MomentoHorizontal;
    punto.CorteTotal = (Wd_ * B_) * seno;
    punto.MomentoPermanente = -(B2 * WpD_ * seno) / 2 + coseno * e.MomentoHorizontal;
    punto.CortePermanente = (WpD_ * B_) * seno;
    punto.CorteY = (L_ * L_ * -WT_ * coseno) / (Hh_ + Hh_) -
                   (((L_ + L_) + B_) * (Wd_ * B_) * coseno) / (Hh_ + Hh_) -
                   (coseno * e.MomentoApoyoTotal) / Hh_;
    punto.Torsor = seno * e.MomentoHorizontal;
    punto.Axial = P() * seno + ((Wd_ * B_) / (Hh_ + Hh_)) * ((L_ + L_) + B_) * seno +
                  (seno * e.MomentoApoyoTotal) / Hh_;
    punto.MomentoY = Bh_ * P() * seno + Bh_ * ((Wd_ * B_) / (Hh_ + Hh_)) * ((L_ + L_) + B_) * seno +
                     (Bh_ * seno * e.MomentoApoyoTotal) / Hh_;
    return punto;
}

}  // namespace trabex::escaleras
