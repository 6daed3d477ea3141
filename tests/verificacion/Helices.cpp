// Helical stairs and beams: least work in space, the bow girder of the textbooks.

#include <cmath>
#include <random>

#include "Verificacion.h"
#include "helical/CalcularEscaleraH.h"
#include "support/HelicePorTrabajo.h"

namespace trabex::verificacion {

using namespace helices;
using namespace prueba;

namespace {

constexpr const char* Nombre = "Escaleras y vigas helicoidales";

double Grados(double grados) {
    return grados * std::acos(-1) / 180;
}

ResultadosEscaleraH Calcular(const DatosEscaleraH& e) {
    ResultadosEscaleraH r;
    CalcularEscaleraH(e, {}, r);
    return r;
}

DatosEscaleraH AlAzar(std::mt19937& azar, bool plana) {
    const auto entre = [&azar](double a, double b) { return std::uniform_real_distribution<>(a, b)(azar); };
    const auto entero = [&azar](int a, int b) { return std::uniform_int_distribution<>(a, b)(azar); };
    DatosEscaleraH e{"", "", entre(0.8, 2), entre(0.1, 0.4), plana ? 0 : entre(1, 5), entre(1.2, 4), 0, 0, 0};
    e.Angulo = 10.0 * entero(6, 36);
    e.W = entero(500, 4000);
    e.Inter = static_cast<std::int16_t>(entero(3, 20));
    return e;
}

void TrabajoMinimo(Problemas& problemas) {
    Problema& trabajo = problemas.emplace_back(
        Nombre, "Las seis acciones de cada estación de los dos tramos",
        "Trabajo mínimo con las seis incógnitas del centro, integrado como vectores en el espacio", 1e-9);
    Problema& reaccion = problemas.emplace_back(
        Nombre, "Reacción vertical: la mitad de la carga (kgf enteros)", "Equilibrio vertical", 1e-3);
    std::mt19937 azar(13);
    for (int vez = 0; vez < 40; ++vez) {
        const DatosEscaleraH e = AlAzar(azar, vez % 8 == 0);
        const ResultadosEscaleraH r = Calcular(e);
        const EjeHelice eje(e);
        const HelicePorTrabajo referencia(e);
        trabajo.NuevoCaso();
        reaccion.NuevoCaso();
        reaccion.Comparar(r.FV, e.W * r.L / 2, e.W * r.L / 2);
        for (std::size_t i = 1; i <= r.NEst; ++i) {
            const double grados = static_cast<double>(i - 1) * e.Inter;
            for (const auto& [estacion, t] : {std::pair{&r.TramoInferior[i], Grados(grados)},
                                              {&r.TramoSuperior[i], Grados(grados - e.Angulo / 2)}}) {
                const Accion a = AccionDe(*estacion, eje, t), b = referencia.En(t);
                for (std::size_t k = 0; k < 3; ++k) {
                    trabajo.Comparar(a.F[k], b.F[k], e.W * e.R);
                    trabajo.Comparar(a.M[k], b.M[k], e.W * e.R * e.R);
                }
            }
        }
    }
}

/// A flat curved beam fixed at both ends: one unknown, the moment at the crown, by least work.
void VigaBalcon(Problemas& problemas) {
    Problema& balcon =
        problemas.emplace_back(Nombre, "Viga balcón (H = 0): momento y torsor de cada estación",
                               "Trabajo mínimo con una incógnita, el momento en la clave "
                               "(Timoshenko, Strength of Materials II)",
                               1e-9);
    Problema& nulos = problemas.emplace_back(
        Nombre, "Viga balcón (H = 0): axial, corte y momento laterales nulos", "Simetría", 1e-12);
    std::mt19937 azar(9);
    for (int vez = 0; vez < 60; ++vez) {
        const DatosEscaleraH e = AlAzar(azar, true);
        const ResultadosEscaleraH r = Calcular(e);
        const double fi = Grados(e.Angulo / 2), lambda = (1 + std::pow(e.T / e.B, 2)) / 2;
        const double g = 1 + e.B * e.B / (12 * e.R * e.R), q = e.W * e.R * e.R;
        const double s = std::sin(fi), s2 = std::sin(2 * fi) / 4;
        const double coseno2 = fi / 2 + s2, seno2 = fi / 2 - s2;
        const double clave = q * (g * (s - coseno2) + lambda * (s - fi * std::cos(fi) - g * seno2)) /
                             (coseno2 + lambda * seno2);
        balcon.NuevoCaso();
        nulos.NuevoCaso();
        for (std::size_t i = 1; i <= r.NEst; ++i) {
            const double t = Grados(static_cast<double>(i - 1) * e.Inter);
            const EstacionEscaleraH& p = r.TramoInferior[i];
            balcon.Comparar(p.MX, clave * std::cos(t) - g * q * (1 - std::cos(t)), q);
            balcon.Comparar(p.MT, q * t - (clave + g * q) * std::sin(t), q);
            for (const double nulo : {p.N, p.QY, p.MY}) nulos.Comparar(nulo, 0, q);
        }
    }
}

}  // namespace

void VerificarHelices(Problemas& problemas) {
    TrabajoMinimo(problemas);
    VigaBalcon(problemas);
}

}  // namespace trabex::verificacion
