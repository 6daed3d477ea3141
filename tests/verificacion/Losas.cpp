// Slabs: beams of the textbooks, frames by another solver.

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
constexpr const char* Coeficientes =
    "Coeficientes publicados de vigas continuas de luces iguales (AISC, ibíd.)";
constexpr double Exacto = 1e-9;  // supports are springs of a stiffness that is large and not infinite

ResultadosLosa Calcular(const Losa& losa) {
    ResultadosLosa r;
    CalcularLosa(losa, {}, r);
    return r;
}

const EsfuerzosTramo& Permanente(const ResultadosLosa& r, std::size_t tramo) {
    return r.ResultadoTramo[CasoPermanente][tramo];
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

/// What a manual says of a beam under a load that is uniform, or at u of its span: end moments and the first
/// shear, in parts of the load and the span; where it tells them, the span's greatest moment, its place and
/// the first point of inflection.
struct VigaDeManual {
    const char* Que;
    std::int16_t A, B;
    double u, MA, VA, MB, MT = 0, x = 0, Inflexion = 0, Limite = Exacto;
};
// The moment under a point load is found by walking the span in thousandths.
const VigaDeManual Vigas[] = {
    {"Viga simplemente apoyada, carga uniforme", ApoyoFijo, RodilloEnX, 0, 0, 0.5, 0, 1 / 8.0, 0.5},
    {"Viga simplemente apoyada, carga puntual: cortes", ApoyoFijo, RodilloEnX, 0.05, 0, 0.95, 0},
    {"La misma: momento máximo", ApoyoFijo, RodilloEnX, 1 / 3.0, 0, 2 / 3.0, 0, 2 / 9.0, 0, 0, 1e-2},
    {"Voladizo a la derecha, carga uniforme", Empotramiento, SinApoyo, 0, -0.5, 1, 0},
    {"Voladizo a la izquierda, carga uniforme", SinApoyo, Empotramiento, 0, 0, 0, -0.5},
    {"Voladizo a la derecha, carga puntual", Empotramiento, SinApoyo, 0.8, -0.8, 1, 0},
    {"Voladizo a la izquierda, carga puntual", SinApoyo, Empotramiento, 0.2, 0, 0, -0.8},
    {"Viga doblemente empotrada, carga uniforme: momentos, cortes y puntos de inflexión", Empotramiento,
     Empotramiento, 0, -1 / 12.0, 0.5, -1 / 12.0, 1 / 24.0, 0.5, 0.5 - std::sqrt(1 / 12.0)},
    {"Viga doblemente empotrada, carga puntual", Empotramiento, Empotramiento, 0.4, -0.144, 0.648, -0.096},
    {"Viga empotrada y apoyada, carga uniforme: momentos, cortes y punto de inflexión", Empotramiento,
     RodilloEnX, 0, -1 / 8.0, 5 / 8.0, 0, 9 / 128.0, 5 / 8.0, 0.25},
    {"Viga apoyada y empotrada, carga puntual", ApoyoFijo, Empotramiento, 0.2, 0, 0.704, -0.096},
};

void VigasDeUnTramo(Problemas& problemas) {
    for (const VigaDeManual& v : Vigas) {
        const auto comparar = [&v](Problema& p, double L, std::int32_t carga) {
            const bool puntual = v.u != 0;
            const double W = puntual ? carga : carga * L;
            const ResultadosLosa r =
                Calcular(Viga(L, puntual ? 0 : carga, v.A, v.B, puntual ? carga : 0, v.u * L));
            p.Comparar(Permanente(r, 1).MomentoA, v.MA * W * L, W * L);
            p.Comparar(Permanente(r, 1).MomentoB, v.MB * W * L, W * L);
            p.Comparar(Permanente(r, 1).CorteA, v.VA * W, W);
            p.Comparar(std::fabs(Permanente(r, 1).CorteB), (1 - v.VA) * W, W);
            if (v.MT != 0) p.Comparar(r.DisenoTramo[1].MT, 1.2 * v.MT * W * L, W * L);
            if (v.x != 0) p.Comparar(r.DisenoTramo[1].x, v.x * L, L);
            if (v.Inflexion != 0) p.Comparar(r.DisenoEje[1].PtoD, v.Inflexion * L, L);
        };
        ParaCadaViga(problemas, v.Que, Manual, comparar, v.Limite);
    }
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
                     p.Comparar(Permanente(r, 2).MomentoA, M, w * L * L);
                     p.Comparar(Permanente(r, 2).MomentoB, M, w * L * L);
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

void OtroPrograma(Problemas& problemas) {
    Problema& portico = problemas.emplace_back(
        Nombre,
        "Losas de 1 a 8 tramos con apoyos, voladizos y juntas desplazadas al azar: fuerzas en los extremos",
        "Otro programa de pórticos planos, con más cifras: matriz llena, pivotes, cargas integradas por "
        "Gauss",
        Exacto);
    Problema& suma = problemas.emplace_back(Nombre, "Las mismas losas: suma de reacciones contra cargas",
                                            "Equilibrio vertical", Exacto);
    std::mt19937 azar(7);
    for (int vez = 0; vez < 300; ++vez) {
        const Losa losa = LosaAlAzar(azar, vez % 2 == 1);
        const ResultadosLosa r = Calcular(losa);
        const PorticoDenso denso(losa, 250, false);
        portico.NuevoCaso();
        suma.NuevoCaso();
        double M = 0, V = 0, cargas = 0, reacciones = 0;
        for (const Tramo& t : losa.Tramos) {
            M = std::max(M, t.Wp * t.LT * t.LT / 8 + t.p1 * t.LT / 4);
            V = std::max(V, t.Wp * t.LT / 2 + t.p1);
        }
        for (std::size_t i = 1; i < losa.Tramos.size(); ++i) {
            const EstadoJunta& a = r.ResultadoJunta[CasoPermanente][i];
            const EstadoJunta& b = r.ResultadoJunta[CasoPermanente][i + 1];
            cargas += losa.Tramos[i].Wp * std::hypot(b.x - a.x, b.y - a.y) + losa.Tramos[i].p1;
            const EsfuerzosTramo& e = Permanente(r, i);
            const PorticoDenso::Extremos& d = denso.ExtremosDeBarras()[i];
            portico.Comparar(e.MomentoA, static_cast<double>(d.MA), M);
            portico.Comparar(e.MomentoB, static_cast<double>(d.MB), M);
            portico.Comparar(e.CorteA, static_cast<double>(d.VA), V);
        }
        for (const EstadoJunta& junta : r.ResultadoJunta[CasoPermanente]) reacciones += junta.RV;
        suma.Comparar(std::fabs(reacciones), cargas, cargas);
    }
}

void VigaInclinada(Problemas& problemas) {
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
}

}  // namespace

void VerificarLosas(Problemas& problemas) {
    VigasDeUnTramo(problemas);
    VigasContinuas(problemas);
    VigaInclinada(problemas);
    OtroPrograma(problemas);
}

}  // namespace trabex::verificacion
