// Self-supporting stairs: equilibrium of flight and landing.

#include <cmath>
#include <random>

#include "Verificacion.h"
#include "stairs/CalcularEscaleraT.h"
#include "support/EscaleraPorTrabajo.h"

namespace trabex::verificacion {

using namespace escaleras;

namespace {

constexpr const char* Nombre = "Escaleras autoportantes";

DatosEscaleraT AlAzar(std::mt19937& azar) {
    const auto entre = [&azar](double a, double b) { return std::uniform_real_distribution<>(a, b)(azar); };
    DatosEscaleraT e;
    e.L = entre(1.2, 5);
    e.B = entre(0.8, 2.5);
    e.H = entre(1.5, 5);
    e.HT = entre(0.12, 0.35);
    e.Hd = entre(0.12, 0.35);
    e.WT = static_cast<std::int32_t>(entre(300, 4000));
    e.Wd = static_cast<std::int32_t>(entre(300, 4000));
    e.WpD = static_cast<std::int32_t>(e.Wd * entre(0.3, 1));
    return e;
}

/// The two redundants of the closed form, found again from their definition.
void TrabajoMinimo(Problemas& problemas) {
    constexpr const char* fuente =
        "Trabajo mínimo con dos incógnitas, integrado con más cifras (descanso semicircular, GJ = 2·EI)";
    Problema& apoyo =
        problemas.emplace_back(Nombre, "Momento de apoyo, con carga total y permanente", fuente, 1e-12);
    Problema& clave = problemas.emplace_back(Nombre, "Momento horizontal en la clave", fuente, 1e-12);
    Problema& empuje = problemas.emplace_back(Nombre, "Empuje del par entre los dos tramos", fuente, 1e-12);
    Problema& estaciones =
        problemas.emplace_back(Nombre, "Momentos de las once estaciones del tramo", fuente, 1e-12);
    std::mt19937 azar(17);
    for (int vez = 0; vez < 100; ++vez) {
        const DatosEscaleraT e = AlAzar(azar);
        ResultadosEscaleraT r;
        CalcularEscaleraT(e, {}, r);
        const prueba::EscaleraPorTrabajo total(e, e.Wd), permanente(e, e.WpD);
        const double V = e.WT * e.L + e.Wd * e.B, M = V * (e.L + e.B);
        for (Problema* p : {&apoyo, &clave, &empuje, &estaciones}) p->NuevoCaso();
        apoyo.Comparar(r.Estatica.MomentoApoyoTotal, static_cast<double>(total.MomentoApoyo), M);
        apoyo.Comparar(r.Estatica.MomentoApoyoPermanente, static_cast<double>(permanente.MomentoApoyo), M);
        clave.Comparar(r.Estatica.MomentoHorizontal, static_cast<double>(total.MomentoHorizontal), M);
        empuje.Comparar(r.Estatica.EmpujeFlexion, static_cast<double>(total.Empuje), V + 2 * M / e.H);
        for (std::size_t i = 0; i <= 10; ++i)
            estaciones.Comparar(r.TramoT[i].MomentoTotal,
                                static_cast<double>(total.Momento(e.L * static_cast<long double>(i) / 10)),
                                M);
    }
}

}  // namespace

void VerificarEscaleras(Problemas& problemas) {
    TrabajoMinimo(problemas);
    Problema& vertical = problemas.emplace_back(
        Nombre, "Reacción vertical: carga de un tramo y de medio descanso", "Equilibrio vertical", 1e-10);
    Problema& extremos = problemas.emplace_back(
        Nombre, "Momento de la losa en el descanso: −Wd·B²/2, y en el apoyo el hiperestático",
        "Equilibrio del descanso", 1e-9);
    Problema& fuerzas = problemas.emplace_back(Nombre, "Axial y corte de las once estaciones del tramo",
                                               "Equilibrio de lo que hay hasta el descanso", 1e-9);
    Problema& momentos =
        problemas.emplace_back(Nombre, "Momento lateral y torsor contra el empuje y el momento horizontal",
                               "Giro de ejes del plano de la losa al horizontal", 1e-9);
    Problema& descanso =
        problemas.emplace_back(Nombre, "Descanso: corte, axial y momentos de siete estaciones",
                               "Equilibrio del cuarto de descanso", 1e-9);
    std::mt19937 azar(3);
    for (int vez = 0; vez < 200; ++vez) {
        const DatosEscaleraT e = AlAzar(azar);
        ResultadosEscaleraT r;
        CalcularEscaleraT(e, {}, r);
        const double alfa = std::atan2(e.H / 2, e.L), c = std::cos(alfa), s = std::sin(alfa);
        const double V = e.WT * e.L + e.Wd * e.B;
        const double M = V * e.L, F = std::fabs(r.TramoT[0].Axial) + V;
        for (Problema* p : {&vertical, &extremos, &fuerzas, &momentos, &descanso}) p->NuevoCaso();
        vertical.Comparar(r.ReaccionVertical, V, V);
        extremos.Comparar(r.TramoT[0].MomentoTotal, -e.Wd * e.B * e.B / 2, M);
        extremos.Comparar(r.TramoT[0].MomentoPermanente, -e.WpD * e.B * e.B / 2, M);
        extremos.Comparar(r.TramoT[10].MomentoTotal, r.Estatica.MomentoApoyoTotal, M);
        extremos.Comparar(r.TramoT[10].MomentoPermanente, r.Estatica.MomentoApoyoPermanente, M);
        for (std::size_t i = 0; i <= 10; ++i) {
            const double baja = e.Wd * e.B + e.WT * e.L * static_cast<double>(i) / 10;
            const double E = r.Estatica.EmpujeFlexion;
            fuerzas.Comparar(r.TramoT[i].Axial, E * c + baja * s, F);
            fuerzas.Comparar(r.TramoT[i].CorteTotal, baja * c - E * s, F);
        }
        const double couple = e.B / 2 * r.Estatica.EmpujeFlexion, H = r.Estatica.MomentoHorizontal;
        for (const EscaleraTramoPunto& punto : r.TramoT) {
            momentos.Comparar(c * punto.MomentoY + s * punto.Torsor, couple,
                              std::fabs(couple) + std::fabs(H));
            momentos.Comparar(c * punto.Torsor - s * punto.MomentoY, H, std::fabs(couple) + std::fabs(H));
        }
        for (std::size_t j = 1; j <= 7; ++j) {
            const double t = static_cast<double>(j - 1) * std::acos(-1) / 12;
            const EscaleraDescansoPunto& p = r.DescansoT[j];
            descanso.Comparar(p.CorteTotal, e.Wd * e.B * std::sin(t), F);
            descanso.Comparar(p.Axial * std::sin(t) - p.CorteY * std::cos(t), r.Estatica.EmpujeFlexion, F);
            descanso.Comparar(p.MomentoY, e.B / 2 * p.Axial, M + F * e.B);
            descanso.Comparar(p.MomentoTotal, H * std::cos(t) - e.Wd * e.B * e.B / 2 * std::sin(t),
                              M + std::fabs(H));
            descanso.Comparar(p.Torsor, H * std::sin(t), M + std::fabs(H));
        }
    }
}

}  // namespace trabex::verificacion
