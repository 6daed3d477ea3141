// Sections of slabs: the steel's moment, found from the equilibrium of the section.

#include <cmath>

#include "Verificacion.h"
#include "slab/DisenoSeccion.h"

namespace trabex::verificacion {

using namespace losas;

namespace {

constexpr const char* Nombre = "Losas: secciones";

/// Moment (kgf·cm) that a section with tension and compression steel resists, from the equilibrium of forces
/// with a rectangular block of 0.85·fc: the neutral axis by bisection.
double MomentoResistente(double As, double Asc, double b, double d, double r, double fc, double fy,
                         double beta) {
    const auto aceroComprimido = [&](double c) {
        return Asc * std::fmin(fy, std::fmax(-fy, 6300 * (c - r) / c));
    };
    double menor = 1e-9, mayor = d;
    for (int i = 0; i < 200; ++i) {
        const double c = (menor + mayor) / 2;
        (0.85 * fc * b * beta * c + aceroComprimido(c) > As * fy ? mayor : menor) = c;
    }
    const double c = (menor + mayor) / 2;
    return 0.85 * fc * b * beta * c * (d - beta * c / 2) + aceroComprimido(c) * (d - r);
}

void Flexion(Problemas& problemas, const char* que, double desde, double hasta, double limite) {
    Problema& problema = problemas.emplace_back(
        Nombre, que, "Equilibrio de la sección con el bloque rectangular de Whitney", limite);
    for (const int FC : {180, 250, 280, 350}) {
        for (const auto& [b, h] : {std::pair{1.0, 0.15}, {1.0, 0.2}, {1.0, 0.3}, {0.1, 0.25}, {0.4, 0.6}}) {
            Losa losa;
            losa.OpcionMaciza = true;
            losa.Bm = b;
            losa.Hm = h;
            DatosGenerales generales;
            generales.FC = static_cast<std::int16_t>(FC);
            const DisenoSeccion diseno(losa, generales);
            const double r = 2.5, d = h * 100 - r;
            const double limiteDeSeccion = 0.2 * FC * 0.882 * b * 100 * d * d;
            for (int i = 0; i <= 20; ++i) {
                const double Mu = limiteDeSeccion * (desde + (hasta - desde) * i / 20);
                const AceroCaras as = diseno.CalcularAcero(Mu / 100 * generales.FiMomento);
                const double beta = FC > 280 ? 0.85 - (FC - 280) * 0.05 / 70 : 0.85;
                problema.NuevoCaso();
                problema.Comparar(
                    MomentoResistente(as.AsInf, as.AsSup, b * 100, d, r, FC, generales.FY, beta), Mu, Mu);
            }
        }
    }
}

}  // namespace

void VerificarSecciones(Problemas& problemas) {
    Flexion(problemas, "Acero a tracción de 2 a 99 % del momento límite: momento que resiste", 0.02, 0.99,
            1e-2);
    Flexion(problemas, "Acero a tracción y a compresión, de 1.01 a 2 veces el momento límite", 1.01, 2, 2e-2);
}

}  // namespace trabex::verificacion
