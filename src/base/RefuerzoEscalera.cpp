#include "base/RefuerzoEscalera.h"

#include <cmath>

namespace trabex {

AcerosFlexion AcerosDeEscalera(double M, double Ancho, double Alto, const DatosGenerales& generales,
                               const Pasos& pasos) {
    const double Mu = pasos([&] { return ((std::fabs(M) * generales.FS) / generales.FiMomento) * 100; });
    if (pasos.SeCuentan())
        pasos.Contar("Mu", "100·{M}·{FS}/{φ}",
                     {{"M", std::fabs(M)}, {"FS", generales.FS}, {"φ", generales.FiMomento}}, Mu, "kgf·cm");
    const auto seccion = pasos([&] { return SeccionFlexion{Ancho * 100, Alto * 100, generales.D8 * 100}; });
    return RefuerzoFlexion(Mu, seccion, {generales.FC, generales.FY}, pasos);
}

AceroCaras RefuerzoEscalera(double M, double Ancho, double Alto, const DatosGenerales& generales,
                            const Pasos& pasos) {
    return RepartirEnCaras(M, AcerosDeEscalera(M, Ancho, Alto, generales, pasos));
}

}  // namespace trabex
