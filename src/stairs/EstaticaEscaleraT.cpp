#include "stairs/EstaticaEscaleraT.h"

#include <cmath>

namespace trabex::escaleras {

namespace {

constexpr int GradosPorEstacion = 15;

// Multiples of 3.14159265358979.
constexpr double TresPi = 9.42477796076937;
constexpr double SeisPi = 18.84955592153874;
constexpr double NuevePi = 28.27433388230811;
constexpr double DieciochoPi = 56.54866776461622;

/// Horizontal force that the flight's load asks for.
double EmpujeDelTramo(double L, double WT, double Hh) {
    return (L * L * WT) / (Hh + Hh);
}

/// Horizontal force that a landing load W asks for.
double EmpujeDelDescanso(double L, double B, double W, double Hh) {
    return (((L + L) + B) * (W * B)) / (Hh + Hh);
}

void FormarCoeficientes(double k, double c, const Pasos& pasos, EstaticaEscaleraT& e) {
    const double k2 = pasos([&] { return k * k; });
    const double k3 = pasos([&] { return std::pow(k, 3); });
    const double c2 = c * c;
    e.Denominador = pasos([&] { return c2 * (k3 * NuevePi) + (k * SeisPi + c * 8); });
    e.CoefMomento =
        pasos([&] { return (c2 * (k3 * DieciochoPi) + (k * TresPi + c * 4)) * (1 / (e.Denominador * 4)); });
    e.CoefLateral = pasos([&] { return ((k * 3) * c) / e.Denominador; });
    e.CoefDescanso = pasos([&] {
        return ((k2 + k2) * (((c2 * (k2 * NuevePi)) * (k + 1) - k * TresPi) - c * 4)) / e.Denominador;
    });
    e.CoefLateralDescanso = pasos([&] { return (((k2 * 8) * (k * 3 + 2)) * c) / e.Denominador; });
}

void EnvolverMomento(double M, EscaleraTramoPunto& punto) {
    if (M > 0) {
        if (punto.EnvolventePositiva < M) punto.EnvolventePositiva = M;
    } else if (punto.EnvolventeNegativa > M) {
        punto.EnvolventeNegativa = M;
    }
}

}  // namespace

double XDeEstacion(const DatosEscaleraT& escalera, std::size_t estacion) {
    const double dX = escalera.L / static_cast<double>(UltimaEstacion);
    double X = 0;
    for (std::size_t i = 0; i < estacion; ++i) X += dX;
    return X;
}

int GradosDeDescanso(std::size_t estacion) {
    return (static_cast<int>(estacion) - 1) * GradosPorEstacion;
}

void FormarEstatica(const DatosEscaleraT& escalera, const Pasos& pasos, EstaticaEscaleraT& e) {
    const double L = escalera.L;
    const double Hh = escalera.H / 2;
    const double WT = escalera.WT;
    const double Wd = escalera.Wd;
    const double WpD = escalera.WpD;
    e.Alfa = pasos([&] { return std::atan(Hh / L); });
    const double k = pasos([&] { return (escalera.B / 2) / L; });
    FormarCoeficientes(k, std::cos(e.Alfa), pasos, e);

    const double L2 = pasos([&] { return L * L; });
    const double T1 = pasos([&] { return -(L2 * (e.CoefMomento * WT)); });
    const double T2 = pasos([&] { return -(L2 * (WT * e.CoefLateral)); });
    const double T3 = pasos([&] { return -(L2 * (Wd * e.CoefDescanso)); });
    const double T4 = pasos([&] { return -(L2 * (Wd * e.CoefLateralDescanso)); });
    const double T5 = pasos([&] { return -(L2 * (WpD * e.CoefDescanso)); });
    e.MomentoApoyoTotal = pasos([&] { return T3 + T1; });
    e.MomentoHorizontal = pasos([&] { return T4 + T2; });
    e.MomentoApoyoPermanente = pasos([&] { return T1 + T5; });
    e.EmpujeFlexion = pasos([&] {
        return EmpujeDelTramo(L, WT, Hh) + EmpujeDelDescanso(L, escalera.B, Wd, Hh) +
               e.MomentoApoyoTotal / Hh;
    });
}

EsfuerzosEscaleraT::EsfuerzosEscaleraT(const DatosEscaleraT& escalera, const EstaticaEscaleraT& estatica)
    : L_(escalera.L),
      B_(escalera.B),
      WT_(escalera.WT),
      Wd_(escalera.Wd),
      WpD_(escalera.WpD),
      Hh_(escalera.H / 2),
      Bh_(escalera.B / 2),
      seno_(std::sin(estatica.Alfa)),
      coseno_(std::cos(estatica.Alfa)),
      tangente_(std::tan(estatica.Alfa)),
      e_(estatica) {}

double EsfuerzosEscaleraT::Momento(double X, double W, double momentoApoyo) const {
    return EmpujeDelTramo(L_, WT_, Hh_) * X * tangente_ - X * X * (WT_ * 0.5) +
           EmpujeDelDescanso(L_, B_, W, Hh_) * X * tangente_ - (B_ / 2 + X) * (W * B_) +
           (tangente_ * X * momentoApoyo) / Hh_;
}

double EsfuerzosEscaleraT::Corte(double X, double W, double momentoApoyo) const {
    return -(L_ * L_ * WT_ * seno_) / (Hh_ + Hh_) + (WT_ * X) * coseno_ -
           (((L_ + L_) + B_) * (W * B_) * seno_) / (Hh_ + Hh_) + (W * B_) * coseno_ -
           (seno_ * momentoApoyo) / Hh_;
}

double EsfuerzosEscaleraT::Axial(double X) const {
    return (L_ * L_ * WT_ * coseno_) / (Hh_ + Hh_) + (WT_ * X) * seno_ +
           (((L_ + L_) + B_) * (Wd_ * B_) * coseno_) / (Hh_ + Hh_) + (Wd_ * B_) * seno_ +
           (coseno_ * e_.MomentoApoyoTotal) / Hh_;
}

void EsfuerzosEscaleraT::EnTramo(double X, const Pasos& pasos, EscaleraTramoPunto& punto) const {
    const double E = e_.EmpujeFlexion;
    const double MH = e_.MomentoHorizontal;
    punto.MomentoTotal = pasos([&] { return Momento(X, Wd_, e_.MomentoApoyoTotal); });
    punto.MomentoPermanente = pasos([&] { return Momento(X, WpD_, e_.MomentoApoyoPermanente); });
    punto.CorteTotal = pasos([&] { return Corte(X, Wd_, e_.MomentoApoyoTotal); });
    punto.CortePermanente = pasos([&] { return Corte(X, WpD_, e_.MomentoApoyoPermanente); });
    punto.Axial = pasos([&] { return Axial(X); });
    punto.MomentoY = pasos([&] { return Bh_ * coseno_ * E - seno_ * MH; });
    punto.Torsor = pasos([&] { return Bh_ * seno_ * E + coseno_ * MH; });
    EnvolverMomento(punto.MomentoTotal, punto);
    EnvolverMomento(punto.MomentoPermanente, punto);
}

void EsfuerzosEscaleraT::EnDescanso(double teta, const Pasos& pasos, EscaleraDescansoPunto& punto) const {
    const double seno = std::sin(teta);
    const double coseno = std::cos(teta);
    const double B2 = pasos([&] { return B_ * B_; });
    const double MH = e_.MomentoHorizontal;
    const double apoyo = e_.MomentoApoyoTotal;
    punto.MomentoTotal = pasos([&] { return -(B2 * Wd_ * seno) / 2 + coseno * MH; });
    punto.CorteTotal = pasos([&] { return (Wd_ * B_) * seno; });
    punto.MomentoPermanente = pasos([&] { return -(B2 * WpD_ * seno) / 2 + coseno * MH; });
    punto.CortePermanente = pasos([&] { return (WpD_ * B_) * seno; });
    punto.CorteY = pasos([&] {
        return (L_ * L_ * -WT_ * coseno) / (Hh_ + Hh_) -
               (((L_ + L_) + B_) * (Wd_ * B_) * coseno) / (Hh_ + Hh_) - (coseno * apoyo) / Hh_;
    });
    punto.Torsor = pasos([&] { return seno * MH; });
    punto.Axial = pasos([&] {
        return EmpujeDelTramo(L_, WT_, Hh_) * seno + ((Wd_ * B_) / (Hh_ + Hh_)) * ((L_ + L_) + B_) * seno +
               (seno * apoyo) / Hh_;
    });
    punto.MomentoY = pasos([&] {
        return Bh_ * EmpujeDelTramo(L_, WT_, Hh_) * seno +
               Bh_ * ((Wd_ * B_) / (Hh_ + Hh_)) * ((L_ + L_) + B_) * seno + (Bh_ * seno * apoyo) / Hh_;
    });
}

}  // namespace trabex::escaleras
