#include "drawing/helice/CuerpoHelice.h"

#include <algorithm>
#include <cmath>
#include <utility>

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

/// A beam, which is not much wider than deep, has none.
int PeldanosDe(const DatosEscaleraH& e) {
    if (!(e.B > 2 * e.T)) return 0;
    const double peldanos = Round(e.H / AltoDePeldano);
    return peldanos >= 1 && peldanos <= PeldanosMaximos ? static_cast<int>(peldanos) : 0;
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
      angulo_(std::min(escalera.Angulo, AnguloMaximo)),
      grados_(static_cast<int>(Round(angulo_))),
      peldanos_(PeldanosDe(escalera)) {}

/// Every radius rises alike: the slope arctan(H / Lo) of an edge over its own developed length Lo.
Punto3 CuerpoHelice::En(double radio, double grados, double sobre) const {
    const Direccion d = DireccionEn(grados);
    const double altura = escalera_.H * grados / angulo_ - escalera_.H / 2;
    return {radio * d.Coseno, altura + sobre, -radio * d.Seno};
}

std::vector<double> CuerpoHelice::Quiebres(double desde, double hasta, double paso) {
    const int partes = std::max(1, static_cast<int>(std::ceil((hasta - desde) / paso)));
    std::vector<double> quiebres;
    for (int k = 0; k <= partes; ++k) quiebres.push_back(desde + (hasta - desde) * k / partes);
    return quiebres;
}

namespace {

using Cara = CuerpoHelice::Cara;
using Parte = CuerpoHelice::Parte;

constexpr Punto3 Arriba{0, 1, 0};
constexpr Punto3 Abajo{0, -1, 0};

/// Puts the faces of a flight together, each turned to be seen from outside.
class Armado {
  public:
    Armado(const CuerpoHelice& cuerpo, double paso) : c_(cuerpo), paso_(paso) {}

    void Losa() {
        const double T = c_.Espesor();
        PorQuiebres(0, c_.Grados(), [&](double g1, double g2) {
            const double re = c_.RadioExterior();
            const double ri = c_.RadioInterior();
            Agregar({c_.En(re, g1, -T), c_.En(re, g2, -T), c_.En(ri, g2, -T), c_.En(ri, g1, -T)},
                    {true, false, true, false}, Parte::Fondo, Abajo);
            PorCostados((g1 + g2) / 2, [&](double radio, const Punto3& afuera) {
                Agregar({c_.En(radio, g1), c_.En(radio, g2), c_.En(radio, g2, -T), c_.En(radio, g1, -T)},
                        {true, false, true, false}, Parte::Losa, afuera);
            });
        });
    }

    /// The lines that join both edges of a flight without steps.
    void Superficie() {
        for (int linea = 0; linea * GradosEntreLineas < c_.Grados(); ++linea) {
            const double desde = linea * GradosEntreLineas;
            const double hasta = std::min<double>(desde + GradosEntreLineas, c_.Grados());
            PorQuiebres(desde, hasta, [&](double g1, double g2) {
                const double re = c_.RadioExterior();
                const double ri = c_.RadioInterior();
                Agregar({c_.En(re, g1), c_.En(re, g2), c_.En(ri, g2), c_.En(ri, g1)},
                        {true, false, true, g1 == desde}, Parte::Huella, Arriba);
            });
        }
    }

    void Peldano(double desde, double hasta) {
        const double altura = c_.En(0, desde).y + c_.Contrahuella();
        const auto arriba = [&](double radio, double grados) {
            Punto3 punto = c_.En(radio, grados);
            punto.y = altura;
            return punto;
        };
        const double re = c_.RadioExterior();
        const double ri = c_.RadioInterior();
        Agregar({c_.En(re, desde), arriba(re, desde), arriba(ri, desde), c_.En(ri, desde)},
                {true, true, true, true}, Parte::Contrahuella, HaciaElPie(desde, 1));
        PorQuiebres(desde, hasta, [&](double g1, double g2) {
            Agregar({arriba(re, g1), arriba(re, g2), arriba(ri, g2), arriba(ri, g1)},
                    {true, g2 == hasta, true, g1 == desde}, Parte::Huella, Arriba);
            PorCostados((g1 + g2) / 2, [&](double radio, const Punto3& afuera) {
                Agregar({c_.En(radio, g1), c_.En(radio, g2), arriba(radio, g2), arriba(radio, g1)},
                        {true, false, true, g1 == desde}, Parte::Costado, afuera);
            });
        });
    }

    /// `sentido`: 1 where the end looks down the flight.
    void Extremo(double grados, double sentido) {
        const double T = c_.Espesor();
        const double re = c_.RadioExterior();
        const double ri = c_.RadioInterior();
        Agregar({c_.En(re, grados), c_.En(ri, grados), c_.En(ri, grados, -T), c_.En(re, grados, -T)},
                {true, true, true, true}, Parte::Contrahuella, HaciaElPie(grados, sentido));
    }

    std::vector<Cara> Tomar() { return std::move(caras_); }

  private:
    template <class Accion>
    void PorQuiebres(double desde, double hasta, Accion accion) const {
        const std::vector<double> quiebres = CuerpoHelice::Quiebres(desde, hasta, paso_);
        for (std::size_t k = 1; k < quiebres.size(); ++k) accion(quiebres[k - 1], quiebres[k]);
    }

    template <class Accion>
    void PorCostados(double grados, Accion accion) const {
        const Direccion d = DireccionEn(grados);
        accion(c_.RadioExterior(), Punto3{d.Coseno, 0, -d.Seno});
        accion(c_.RadioInterior(), Punto3{-d.Coseno, 0, d.Seno});
    }

    static Punto3 HaciaElPie(double grados, double sentido) {
        const Direccion d = DireccionEn(grados);
        return {sentido * d.Seno, 0, sentido * d.Coseno};
    }

    /// z looks away from the eye: what turns left before it has its product behind.
    void Agregar(const std::array<Punto3, 4>& v, const std::array<bool, 4>& aristas, Parte parte,
                 const Punto3& afuera) {
        const Punto3 normal = Normal(v);
        if (normal.x * afuera.x + normal.y * afuera.y + normal.z * afuera.z > 0)
            caras_.push_back(
                {{v[3], v[2], v[1], v[0]}, {aristas[2], aristas[1], aristas[0], aristas[3]}, parte});
        else
            caras_.push_back({v, aristas, parte});
    }

    const CuerpoHelice& c_;
    double paso_;
    std::vector<Cara> caras_;
};

}  // namespace

Punto3 Normal(const std::array<Punto3, 4>& v) {
    const Punto3 a{v[2].x - v[0].x, v[2].y - v[0].y, v[2].z - v[0].z};
    const Punto3 b{v[3].x - v[1].x, v[3].y - v[1].y, v[3].z - v[1].z};
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

std::vector<Cara> CuerpoHelice::Caras(double paso) const {
    Armado armado(*this, paso);
    armado.Losa();
    if (peldanos_ == 0) armado.Superficie();
    for (int n = 0; n < peldanos_; ++n) armado.Peldano(n * GradosDePeldano(), (n + 1) * GradosDePeldano());
    armado.Extremo(0, 1);
    armado.Extremo(grados_, -1);
    return armado.Tomar();
}

}  // namespace trabex::dibujo::helice
