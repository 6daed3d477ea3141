#include "drawing/helice/CuerpoHelice.h"

#include <algorithm>
#include <cmath>

#include "base/Angulos.h"
#include "base/Round.h"

namespace trabex::dibujo::helice {

namespace {

using helices::DatosEscaleraH;

constexpr double Cuarto = 90;
constexpr double AnguloMaximo = 360;
constexpr double AltoDePeldano = 0.175;  // m
constexpr double PeldanosMaximos = 120;
constexpr double GradosEntreLineas = 10;  // of a flight without steps

int PeldanosDe(const DatosEscaleraH& e) {
    const double peldanos = Round(e.H / AltoDePeldano);
    return peldanos >= 1 && peldanos <= PeldanosMaximos ? static_cast<int>(peldanos) : 0;
}

Punto3 Resta(const Punto3& a, const Punto3& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

}  // namespace

Direccion DireccionEn(double grados) {
    const double cuarto = std::clamp(std::floor(grados / Cuarto), 0.0, 3.0);
    const double resto = EnRadianes(grados - cuarto * Cuarto);
    const double coseno = std::cos(resto);
    const double seno = std::sin(resto);
    if (cuarto == 0) return {coseno, seno};
    if (cuarto == 1) return {-seno, coseno};
    if (cuarto == 2) return {-coseno, -seno};
    return {seno, -coseno};
}

bool TieneMedidas(const DatosEscaleraH& e) {
    return e.B > 0 && e.T > 0 && e.R > 0 && e.Angulo > 0 && std::isfinite(e.B) && std::isfinite(e.T) &&
           std::isfinite(e.R) && std::isfinite(e.H) && std::isfinite(e.Angulo);
}

CuerpoHelice::CuerpoHelice(const DatosEscaleraH& escalera)
    : escalera_(escalera),
      exterior_(escalera.R + escalera.B / 2),
      interior_(std::max(escalera.R - escalera.B / 2, 0.0)),
      grados_(static_cast<int>(Round(std::min(escalera.Angulo, AnguloMaximo)))),
      peldanos_(PeldanosDe(escalera)) {}

/// Every radius rises alike: the slope arctan(H / Lo) of an edge over its own developed length Lo.
Punto3 CuerpoHelice::En(double radio, double grados, double sobre) const {
    const Direccion d = DireccionEn(grados);
    const double altura = escalera_.H * grados / std::min(escalera_.Angulo, AnguloMaximo) - escalera_.H / 2;
    return {radio * d.Coseno, altura + sobre, -radio * d.Seno};
}

namespace {

using Cara = CuerpoHelice::Cara;
using Parte = CuerpoHelice::Parte;

/// Puts faces together, each turned to be seen from outside.
class Armado {
  public:
    void Agregar(const std::array<Punto3, 4>& v, const std::array<bool, 4>& aristas, Parte parte,
                 const Punto3& afuera) {
        const Punto3 a = Resta(v[2], v[0]);
        const Punto3 b = Resta(v[3], v[1]);
        const double hacia = (a.y * b.z - a.z * b.y) * afuera.x + (a.z * b.x - a.x * b.z) * afuera.y +
                             (a.x * b.y - a.y * b.x) * afuera.z;
        if (hacia > 0)  // z looks away: what turns left before the eye has its product behind it
            caras_.push_back(
                {{v[3], v[2], v[1], v[0]}, {aristas[2], aristas[1], aristas[0], aristas[3]}, parte});
        else
            caras_.push_back({v, aristas, parte});
    }
    std::vector<Cara>&& Tomar() { return std::move(caras_); }

  private:
    std::vector<Cara> caras_;
};

}  // namespace

std::vector<Cara> CuerpoHelice::Caras() const {
    Armado armado;
    const double T = escalera_.T;
    const double contrahuella = peldanos_ > 0 ? escalera_.H / peldanos_ : 0;
    const Punto3 arriba{0, 1, 0};
    const Punto3 abajo{0, -1, 0};

    for (int i = 0; i < grados_; ++i) {
        const double g1 = i;
        const double g2 = i + 1;
        const Direccion d = DireccionEn(i + 0.5);
        const Punto3 fuera{d.Coseno, 0, -d.Seno};
        const Punto3 dentro{-d.Coseno, 0, d.Seno};
        armado.Agregar(
            {En(exterior_, g1, -T), En(exterior_, g2, -T), En(interior_, g2, -T), En(interior_, g1, -T)},
            {true, false, true, false}, Parte::Fondo, abajo);
        for (const auto& [radio, cara] : {std::pair{exterior_, fuera}, std::pair{interior_, dentro}})
            armado.Agregar({En(radio, g1), En(radio, g2), En(radio, g2, -T), En(radio, g1, -T)},
                           {true, false, true, false}, Parte::Losa, cara);
        if (peldanos_ == 0) {
            const bool linea = std::fmod(g1, GradosEntreLineas) == 0;
            armado.Agregar({En(exterior_, g1), En(exterior_, g2), En(interior_, g2), En(interior_, g1)},
                           {true, false, true, linea}, Parte::Huella, arriba);
        }
    }
    for (int n = 0; n < peldanos_; ++n) {
        const double desde = n * GradosDePeldano();
        const double hasta = (n + 1) * GradosDePeldano();
        const double altura = En(0, desde).y + contrahuella;
        const auto a = [&](double radio, double g) {
            Punto3 p = En(radio, g);
            p.y = altura;
            return p;
        };
        const Direccion d = DireccionEn(desde);
        armado.Agregar({En(exterior_, desde), a(exterior_, desde), a(interior_, desde), En(interior_, desde)},
                       {true, true, true, true}, Parte::Contrahuella, {d.Seno, 0, d.Coseno});
        const int partes = std::max(1, static_cast<int>(std::ceil(hasta - desde)));
        for (int k = 0; k < partes; ++k) {
            const double g1 = desde + (hasta - desde) * k / partes;
            const double g2 = desde + (hasta - desde) * (k + 1) / partes;
            const Direccion m = DireccionEn((g1 + g2) / 2);
            armado.Agregar({a(exterior_, g1), a(exterior_, g2), a(interior_, g2), a(interior_, g1)},
                           {true, k + 1 == partes, true, k == 0}, Parte::Huella, arriba);
            for (const auto& [radio, cara] : {std::pair{exterior_, Punto3{m.Coseno, 0, -m.Seno}},
                                              std::pair{interior_, Punto3{-m.Coseno, 0, m.Seno}}})
                armado.Agregar({En(radio, g1), En(radio, g2), a(radio, g2), a(radio, g1)},
                               {true, false, true, k == 0}, Parte::Costado, cara);
        }
    }
    for (const auto& [grados, signo] : {std::pair{0.0, 1.0}, std::pair{static_cast<double>(grados_), -1.0}}) {
        const Direccion d = DireccionEn(grados);
        armado.Agregar({En(exterior_, grados), En(interior_, grados), En(interior_, grados, -T),
                        En(exterior_, grados, -T)},
                       {true, true, true, true}, Parte::Contrahuella, {signo * d.Seno, 0, signo * d.Coseno});
    }
    return armado.Tomar();
}

}  // namespace trabex::dibujo::helice
