// Slabs: beams of the textbooks, continuous beams by another method, frames by another solver.

#include <algorithm>
#include <cmath>
#include <functional>
#include <random>
#include <vector>

#include "Verificacion.h"
#include "slab/CalcularLosa.h"
#include "support/LosasDePrueba.h"
#include "support/PorticoDenso.h"

namespace trabex::verificacion {

using namespace losas;
using namespace prueba;

namespace {

constexpr const char* Nombre = "Losas: análisis";
constexpr const char* Manual =
    "Solución cerrada (AISC, Manual of Steel Construction, Beam Diagrams and Formulas)";
constexpr const char* TresMomentosClapeyron = "Ecuación de los tres momentos (Clapeyron)";
constexpr const char* Coeficientes =
    "Coeficientes publicados de vigas continuas de luces iguales (AISC, ibíd.)";
constexpr double Exacto = 1e-9;  // supports are springs of a stiffness that is large and not infinite

ResultadosLosa Calcular(const Losa& losa) {
    ResultadosLosa r;
    CalcularLosa(losa, {}, r);
    return r;
}

/// A beam of one span between two supports.
Losa Viga(double L, std::int32_t w, std::int16_t A, std::int16_t B, std::int32_t P = 0, double a = 0) {
    Losa losa;
    losa.Tramos.push_back({L, w, 0, P, a});
    losa.Ejes.push_back({"1", A, 0, 0, 0});
    losa.Ejes.push_back({"2", B, 0, 0, 0});
    return losa;
}

using Caso = std::function<void(Problema&, double L, std::int32_t carga)>;

/// A problem over the shortest and the longest spans and loads that slabs have.
void ParaCadaViga(Problemas& problemas, const char* que, const char* fuente, const Caso& caso,
                  double limite = Exacto) {
    Problema& problema = problemas.emplace_back(Nombre, que, fuente, limite);
    for (const double L : {1.0, 1.8, 2.35, 4.5, 8.0, 15.0}) {
        for (const std::int32_t carga : {100, 250, 540, 1200, 20000}) {
            problema.NuevoCaso();
            caso(problema, L, carga);
        }
    }
}

const EsfuerzosTramo& Permanente(const ResultadosLosa& r, std::size_t tramo) {
    return r.ResultadoTramo[CasoPermanente][tramo];
}

/// End moments and end shears against those of a closed solution.
void Extremos(Problema& p, const EsfuerzosTramo& e, double MA, double VA, double MB, double VB,
              double escalaM, double escalaV) {
    p.Comparar(e.MomentoA, MA, escalaM);
    p.Comparar(e.MomentoB, MB, escalaM);
    p.Comparar(e.CorteA, VA, escalaV);
    p.Comparar(std::fabs(e.CorteB), std::fabs(VB), escalaV);
}

void VigasDeUnTramo(Problemas& problemas) {
    ParaCadaViga(problemas, "Viga simplemente apoyada, carga uniforme: cortes y momento máximo", Manual,
                 [](Problema& p, double L, std::int32_t w) {
                     const ResultadosLosa r = Calcular(Viga(L, w, ApoyoFijo, RodilloEnX));
                     Extremos(p, Permanente(r, 1), 0, w * L / 2, 0, w * L / 2, w * L * L, w * L);
                     p.Comparar(r.DisenoTramo[1].MT, 1.2 * w * L * L / 8, w * L * L);
                     p.Comparar(r.DisenoTramo[1].x, L / 2, L);
                 });
    ParaCadaViga(problemas, "Viga simplemente apoyada, carga puntual en cinco lugares: cortes", Manual,
                 [](Problema& p, double L, std::int32_t P) {
                     for (const double u : {0.05, 0.25, 0.5, 0.7, 0.95}) {
                         const ResultadosLosa r = Calcular(Viga(L, 0, ApoyoFijo, RodilloEnX, P, u * L));
                         Extremos(p, Permanente(r, 1), 0, P * (1 - u), 0, P * u, P * L, P);
                     }
                 });
    ParaCadaViga(
        problemas, "Viga simplemente apoyada, carga puntual: momento máximo", Manual,
        [](Problema& p, double L, std::int32_t P) {
            const ResultadosLosa r = Calcular(Viga(L, 0, ApoyoFijo, RodilloEnX, P, L / 3));
            p.Comparar(r.DisenoTramo[1].MT, 1.2 * P * L * 2 / 9, P * L);
        },
        1e-2);  // found by walking the span in thousandths
    ParaCadaViga(problemas, "Voladizo a la derecha, carga uniforme", Manual,
                 [](Problema& p, double L, std::int32_t w) {
                     const ResultadosLosa r = Calcular(Viga(L, w, Empotramiento, SinApoyo));
                     Extremos(p, Permanente(r, 1), -w * L * L / 2, w * L, 0, 0, w * L * L, w * L);
                 });
    ParaCadaViga(problemas, "Voladizo a la izquierda, carga uniforme", Manual,
                 [](Problema& p, double L, std::int32_t w) {
                     const ResultadosLosa r = Calcular(Viga(L, w, SinApoyo, Empotramiento));
                     Extremos(p, Permanente(r, 1), 0, 0, -w * L * L / 2, w * L, w * L * L, w * L);
                 });
    ParaCadaViga(problemas, "Voladizos a ambos lados, carga puntual", Manual,
                 [](Problema& p, double L, std::int32_t P) {
                     const ResultadosLosa d = Calcular(Viga(L, 0, Empotramiento, SinApoyo, P, 0.8 * L));
                     Extremos(p, Permanente(d, 1), -P * 0.8 * L, P, 0, 0, P * L, P);
                     const ResultadosLosa i = Calcular(Viga(L, 0, SinApoyo, Empotramiento, P, 0.2 * L));
                     Extremos(p, Permanente(i, 1), 0, 0, -P * 0.8 * L, P, P * L, P);
                 });
    ParaCadaViga(problemas, "Viga doblemente empotrada, carga uniforme", Manual,
                 [](Problema& p, double L, std::int32_t w) {
                     const ResultadosLosa r = Calcular(Viga(L, w, Empotramiento, Empotramiento));
                     const double M = -w * L * L / 12;
                     Extremos(p, Permanente(r, 1), M, w * L / 2, M, w * L / 2, w * L * L, w * L);
                     p.Comparar(r.DisenoTramo[1].MT, 1.2 * w * L * L / 24, w * L * L);
                 });
    ParaCadaViga(problemas, "Viga doblemente empotrada, carga puntual en cuatro lugares", Manual,
                 [](Problema& p, double L, std::int32_t P) {
                     for (const double u : {0.1, 0.35, 0.5, 0.8}) {
                         const ResultadosLosa r =
                             Calcular(Viga(L, 0, Empotramiento, Empotramiento, P, u * L));
                         const double v = 1 - u;
                         Extremos(p, Permanente(r, 1), -P * L * u * v * v, P * v * v * (1 + 2 * u),
                                  -P * L * u * u * v, P * u * u * (1 + 2 * v), P * L, P);
                     }
                 });
    ParaCadaViga(problemas, "Viga empotrada y apoyada, carga uniforme: momento, cortes, momento del tramo",
                 Manual, [](Problema& p, double L, std::int32_t w) {
                     const ResultadosLosa r = Calcular(Viga(L, w, Empotramiento, RodilloEnX));
                     Extremos(p, Permanente(r, 1), -w * L * L / 8, 5 * w * L / 8, 0, 3 * w * L / 8, w * L * L,
                              w * L);
                     p.Comparar(r.DisenoTramo[1].MT, 1.2 * 9 * w * L * L / 128, w * L * L);
                     p.Comparar(r.DisenoTramo[1].x, 5 * L / 8, L);
                 });
    ParaCadaViga(problemas, "Viga apoyada y empotrada, carga puntual en tres lugares", Manual,
                 [](Problema& p, double L, std::int32_t P) {
                     for (const double u : {0.2, 0.5, 0.9}) {
                         const ResultadosLosa r = Calcular(Viga(L, 0, ApoyoFijo, Empotramiento, P, u * L));
                         const double RA = P * (1 - u) * (1 - u) * (2 + u) / 2;
                         Extremos(p, Permanente(r, 1), 0, RA, -P * L * u * (1 - u * u) / 2, P - RA, P * L, P);
                     }
                 });
    ParaCadaViga(problemas, "Viga doblemente empotrada: puntos de inflexión a 0.2113 de la luz", Manual,
                 [](Problema& p, double L, std::int32_t w) {
                     const ResultadosLosa r = Calcular(Viga(L, w, Empotramiento, Empotramiento));
                     const double x = L * (0.5 - std::sqrt(1.0 / 12));
                     p.Comparar(r.DisenoEje[1].PtoD, x, L);
                     p.Comparar(r.DisenoEje[2].PtoI, x, L);
                 });
}

void VigasContinuas(Problemas& problemas) {
    struct Serie {
        const char* Que;
        std::vector<double> Momentos;  ///< over the interior supports, in w·L²
        std::vector<double> Reacciones;
    };
    const Serie series[]{
        {"Dos luces iguales, carga uniforme: momentos y reacciones", {1 / 8.0}, {3 / 8.0, 10 / 8.0, 3 / 8.0}},
        {"Tres luces iguales", {1 / 10.0, 1 / 10.0}, {0.4, 1.1, 1.1, 0.4}},
        {"Cuatro luces iguales",
         {3 / 28.0, 2 / 28.0, 3 / 28.0},
         {11 / 28.0, 32 / 28.0, 26 / 28.0, 32 / 28.0, 11 / 28.0}},
        {"Cinco luces iguales",
         {4 / 38.0, 3 / 38.0, 3 / 38.0, 4 / 38.0},
         {15 / 38.0, 43 / 38.0, 37 / 38.0, 37 / 38.0, 43 / 38.0, 15 / 38.0}},
    };
    for (const Serie& serie : series) {
        ParaCadaViga(problemas, serie.Que, Coeficientes, [&serie](Problema& p, double L, std::int32_t w) {
            const ResultadosLosa r = Calcular(LosaUniforme(serie.Momentos.size() + 1, L, w));
            for (std::size_t i = 0; i < serie.Momentos.size(); ++i)
                p.Comparar(Permanente(r, i + 1).MomentoB, -serie.Momentos[i] * w * L * L, w * L * L);
            for (std::size_t j = 0; j < serie.Reacciones.size(); ++j)
                p.Comparar(std::fabs(r.ResultadoJunta[CasoPermanente][j + 1].RV), serie.Reacciones[j] * w * L,
                           w * L);
        });
    }
    ParaCadaViga(problemas, "Dos luces iguales, una sola cargada: momento −w·L²/16", Coeficientes,
                 [](Problema& p, double L, std::int32_t w) {
                     Losa losa = LosaUniforme(2, L, w);
                     losa.Tramos[2].Wp = 0;
                     const ResultadosLosa r = Calcular(losa);
                     p.Comparar(Permanente(r, 1).MomentoB, -w * L * L / 16, w * L * L);
                     p.Comparar(r.DisenoEje[2].PtoI, L / 8, L);
                 });
    ParaCadaViga(problemas, "Dos luces iguales: puntos de inflexión a L/4 del apoyo central", Manual,
                 [](Problema& p, double L, std::int32_t w) {
                     const ResultadosLosa r = Calcular(LosaUniforme(2, L, w));
                     p.Comparar(r.DisenoEje[2].PtoI, L / 4, L);
                     p.Comparar(r.DisenoEje[2].PtoD, L / 4, L);
                 });
    ParaCadaViga(problemas, "Viga con dos voladizos iguales: momentos en apoyos y en el centro", Manual,
                 [](Problema& p, double L, std::int32_t w) {
                     const double a = 0.35 * L;
                     Losa losa = LosaContinua({a, L, a}, w);
                     losa.Ejes[1].Tipo = losa.Ejes[4].Tipo = SinApoyo;
                     losa.Ejes[2].Tipo = ApoyoFijo;
                     const ResultadosLosa r = Calcular(losa);
                     const double M = -w * a * a / 2;
                     Extremos(p, Permanente(r, 2), M, w * L / 2, M, w * L / 2, w * L * L, w * L);
                     p.Comparar(Permanente(r, 1).CorteA, 0, w * L);
                     p.Comparar(Permanente(r, 3).CorteB, 0, w * L);
                     p.Comparar(r.DisenoTramo[2].MT, 1.2 * (w * L * L / 8 + M), w * L * L);
                 });
    ParaCadaViga(problemas, "Cuarenta luces iguales: en el medio, −w·L²/12", "Simetría: doblemente empotrada",
                 [](Problema& p, double L, std::int32_t w) {
                     const ResultadosLosa r = Calcular(LosaUniforme(40, L, w));
                     p.Comparar(Permanente(r, 20).MomentoB, -w * L * L / 12, w * L * L);
                 });
}

/// Moments over the supports of a beam on simple supports, by Clapeyron's equation and Thomas' elimination.
std::vector<double> TresMomentos(const Losa& losa) {
    const std::size_t n = losa.Tramos.size() - 1;
    std::vector<double> M(n + 2), c(n + 2), d(n + 2);
    const auto derecha = [&](std::size_t i) {  // 6·A·a/L of the load, taken from the left support
        const Tramo& t = losa.Tramos[i];
        const double a = t.L1;
        return t.Wp * std::pow(t.LT, 3) / 4 + (t.p1 == 0 ? 0 : t.p1 * a * (t.LT * t.LT - a * a) / t.LT);
    };
    const auto izquierda = [&](std::size_t i) {
        const Tramo& t = losa.Tramos[i];
        const double b = t.LT - t.L1;
        return t.Wp * std::pow(t.LT, 3) / 4 + (t.p1 == 0 ? 0 : t.p1 * b * (t.LT * t.LT - b * b) / t.LT);
    };
    for (std::size_t j = 2; j <= n; ++j) {
        const double a = losa.Tramos[j - 1].LT, b = 2 * (losa.Tramos[j - 1].LT + losa.Tramos[j].LT);
        const double divisor = b - a * c[j - 1];
        c[j] = losa.Tramos[j].LT / divisor;
        d[j] = (-derecha(j - 1) - izquierda(j) - a * d[j - 1]) / divisor;
    }
    for (std::size_t j = n; j >= 2; --j) M[j] = d[j] - c[j] * M[j + 1];
    return M;
}

void OtrosMetodos(Problemas& problemas) {
    std::mt19937 azar(7);
    const auto entre = [&azar](double a, double b) { return std::uniform_real_distribution<>(a, b)(azar); };
    const auto entero = [&azar](int a, int b) { return std::uniform_int_distribution<>(a, b)(azar); };
    Problema& clapeyron = problemas.emplace_back(
        Nombre,
        "Vigas de 2 a 30 luces desiguales, cargas uniformes y puntuales al azar: momentos en los apoyos",
        TresMomentosClapeyron, Exacto);
    for (int vez = 0; vez < 300; ++vez) {
        Losa losa = LosaUniforme(static_cast<std::size_t>(entero(2, 30)), 1, 0);
        double mayor = 0;
        for (std::size_t i = 1; i < losa.Tramos.size(); ++i) {
            Tramo& t = losa.Tramos[i];
            t = {entre(1, 9), entero(0, 1500), 0, entero(0, 2) == 0 ? entero(1, 4000) : 0, 0};
            t.L1 = t.LT * entre(0.02, 0.98);
            mayor = std::max({mayor, t.Wp * t.LT * t.LT / 8, t.p1 * t.LT / 4});
        }
        const ResultadosLosa r = Calcular(losa);
        const std::vector<double> M = TresMomentos(losa);
        clapeyron.NuevoCaso();
        for (std::size_t j = 2; j < losa.Tramos.size(); ++j) {
            clapeyron.Comparar(Permanente(r, j - 1).MomentoB, M[j], mayor);
            clapeyron.Comparar(Permanente(r, j).MomentoA, M[j], mayor);
        }
    }
    Problema& portico = problemas.emplace_back(
        Nombre,
        "Losas de 1 a 8 tramos con apoyos, voladizos y juntas desplazadas al azar: fuerzas en los extremos",
        "Otro programa de pórticos planos, con más cifras: matriz llena, pivotes, cargas integradas por "
        "Gauss",
        Exacto);
    Problema& suma = problemas.emplace_back(Nombre, "Las mismas losas: suma de reacciones contra cargas",
                                            "Equilibrio vertical", Exacto);
    Problema& espejo =
        problemas.emplace_back(Nombre, "Las mismas losas vistas desde el otro extremo", "Simetría", Exacto);
    for (int vez = 0; vez < 300; ++vez) {
        const Losa losa = LosaAlAzar(azar, vez % 2 == 1);
        const ResultadosLosa r = Calcular(losa);
        const PorticoDenso denso(losa, 250, false);
        double M = 0, V = 0, cargas = 0, reacciones = 0;
        for (std::size_t i = 1; i < losa.Tramos.size(); ++i) {
            const Tramo& t = losa.Tramos[i];
            M = std::max(M, t.Wp * t.LT * t.LT / 8 + t.p1 * t.LT / 4);
            V = std::max(V, t.Wp * t.LT / 2 + t.p1);
            const auto& a = r.ResultadoJunta[CasoPermanente][i];
            const auto& b = r.ResultadoJunta[CasoPermanente][i + 1];
            cargas += t.Wp * std::hypot(b.x - a.x, b.y - a.y) + t.p1;
        }
        for (const EstadoJunta& junta : r.ResultadoJunta[CasoPermanente]) reacciones += junta.RV;
        portico.NuevoCaso();
        suma.NuevoCaso();
        suma.Comparar(std::fabs(reacciones), cargas, cargas);
        for (std::size_t i = 1; i < losa.Tramos.size(); ++i) {
            const EsfuerzosTramo& e = Permanente(r, i);
            const PorticoDenso::Extremos& d = denso.ExtremosDeBarras()[i];
            portico.Comparar(e.MomentoA, static_cast<double>(d.MA), M);
            portico.Comparar(e.MomentoB, static_cast<double>(d.MB), M);
            portico.Comparar(e.CorteA, static_cast<double>(d.VA), V);
        }
        if (vez % 2 == 1) continue;  // shifts are told from the first joint
        const ResultadosLosa m = Calcular(Espejo(losa));
        espejo.NuevoCaso();
        const std::size_t n = losa.Tramos.size() - 1;
        for (std::size_t i = 1; i <= n; ++i) {
            espejo.Comparar(Permanente(m, n + 1 - i).MomentoA, Permanente(r, i).MomentoB, M);
            espejo.Comparar(std::fabs(Permanente(m, n + 1 - i).CorteA), std::fabs(Permanente(r, i).CorteB),
                            V);
        }
    }
}

/// Two equal inclined members that meet at an apex, by symmetry one of them with a slider at its head.
void VigasInclinadas(Problemas& problemas) {
    ParaCadaViga(problemas, "Tramo inclinado doblemente empotrado: −w·L²·cos α/12 y axial w·L·sen α/2",
                 "Solución cerrada", [](Problema& p, double luz, std::int32_t w) {
                     Losa losa = Viga(luz, w, Empotramiento, Empotramiento);
                     losa.JuntasD.push_back({2, 0, -0.75 * luz});
                     const EsfuerzosTramo e = Permanente(Calcular(losa), 1);
                     const double L = 1.25 * luz, coseno = 0.8, seno = 0.6;
                     const double M = -w * L * L * coseno / 12;
                     p.Comparar(e.MomentoA, M, w * L * L);
                     p.Comparar(e.MomentoB, M, w * L * L);
                     p.Comparar(e.CorteA, w * L * coseno / 2, w * L);
                     p.Comparar(std::fabs(e.AxialA), w * L * seno / 2, w * L);
                 });
    ParaCadaViga(problemas, "Dos aguas sobre apoyos fijos: momento en la cumbrera, con deformación axial",
                 "Solución cerrada", [](Problema& p, double luz, std::int32_t w) {
                     Losa losa = LosaUniforme(2, luz, w);
                     losa.OpcionMaciza = true;
                     losa.Ejes[1].Tipo = losa.Ejes[3].Tipo = ApoyoFijo;
                     losa.Ejes[2].Tipo = SinApoyo;
                     losa.JuntasD.push_back({2, 0, -0.75 * luz});
                     const double L = 1.25 * luz, coseno = 0.8, seno = 0.6, h = losa.Hm;
                     const double EA = 12 / (h * h), EI = 1;  // in units of EI
                     const double rigidez = EA / L * seno * seno + 3 * EI / (L * L * L) * coseno * coseno;
                     const double fuerza = 5.0 / 8 * w * L * coseno * coseno + w * L * seno / 2 * seno;
                     const double baja = fuerza / rigidez;
                     const double M = -w * coseno * L * L / 8 + 3 * EI / (L * L) * baja * coseno;
                     const ResultadosLosa r = Calcular(losa);
                     p.Comparar(Permanente(r, 1).MomentoB, M, w * L * L);
                     p.Comparar(Permanente(r, 2).MomentoA, M, w * L * L);
                 });
}

}  // namespace

void VerificarLosas(Problemas& problemas) {
    VigasDeUnTramo(problemas);
    VigasContinuas(problemas);
    VigasInclinadas(problemas);
    OtrosMetodos(problemas);
}

}  // namespace trabex::verificacion
