#include "slab/DisenoSeccion.h"

#include <algorithm>
#include <cmath>

namespace trabex::losas {

DisenoSeccion::DisenoSeccion(const Losa& losa, const DatosGenerales& generales)
    : losa_(losa), generales_(generales) {
    const SeccionLosa seccion = SeccionDeCalculo(losa);
    const double r = generales.D8 * 100;
    seccion_ = {seccion.Ancho * 100, seccion.Alto * 100, r};

    const double fc = generales.FC;
    const double b = losa.Bo * 100;
    const double d = losa.Ho * 100 - r;
    Vc_ = 0.5830000000000001 * std::sqrt(fc) * b * d * generales.FiCorte;
    Mlim_ = 0.2 * fc * 0.882 * b * (d * d);
}

AceroCaras DisenoSeccion::CalcularAcero(double M, const Pasos& pasos) const {
    const double Mu = std::fabs(M) / generales_.FiMomento * 100;
    if (pasos.SeCuentan())
        pasos.Contar("Mu", "100·{M}/{φ}", {{"M", std::fabs(M)}, {"φ", generales_.FiMomento}}, Mu, "kgf·cm");
    const AcerosFlexion As = RefuerzoFlexion(Mu, seccion_, {generales_.FC, generales_.FY}, pasos);
    return RepartirEnCaras(M, As);
}

double DisenoSeccion::CalcularMacizado(std::size_t junta, double V, double M, double C,
                                       const Pasos& pasos) const {
    const double Ma = std::fabs(M);
    const double Va = std::fabs(V);
    const Tramo& izquierdo = losa_.Tramos[junta - 1];
    const double w = (izquierdo.WV * generales_.FCV + izquierdo.Wp * generales_.FCP) * C;
    const double x1 = w != 0 ? (Va - Vc_) / w : 0;
    const double x0 = w != 0 ? Va / w : 0;
    const double t = w != 0 ? 2 * (Ma - Mlim_ / 100) / w : 0;
    const double x2 = x0 * x0 < t ? losa_.Tramos[junta].LT : x0 - std::sqrt(x0 * x0 - t);
    const double mayor = std::max({x1, x2, 0.0});
    if (pasos.SeCuentan())
        pasos.Contar("w", "({WV}·{FCV} + {Wp}·{FCP})·{cos α}",
                     {{"WV", static_cast<double>(izquierdo.WV)},
                      {"FCV", generales_.FCV},
                      {"Wp", static_cast<double>(izquierdo.Wp)},
                      {"FCP", generales_.FCP},
                      {"cos α", C}},
                     w, "kgf/m");
    if (pasos.SeCuentan()) pasos.Contar("Vc", "0.53·1.1·√F'c·b·d·φ", {}, Vc_, "kgf");
    if (pasos.SeCuentan())
        pasos.Contar("x1", "({V} − {Vc})/{w}", {{"V", Va}, {"Vc", Vc_}, {"w", w}}, x1, "m");
    if (pasos.SeCuentan()) pasos.Contar("x0", "{V}/{w}", {{"V", Va}, {"w", w}}, x0, "m");
    if (pasos.SeCuentan())
        pasos.Contar("x2", "{x0} − √({x0}² − 2·({M} − {Mlim})/{w})",
                     {{"x0", x0}, {"M", Ma}, {"Mlim", Mlim_ / 100}, {"w", w}}, x2, "m");
    if (pasos.SeCuentan())
        pasos.Contar("Macizado", "mayor de {x1}, {x2}, 0", {{"x1", x1}, {"x2", x2}}, mayor, "m");
    return mayor;
}

}  // namespace trabex::losas
