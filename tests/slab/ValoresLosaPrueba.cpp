#include <algorithm>
#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "slab/CalcularLosa.h"
#include "slab/ValoresLosa.h"
#include "support/LosasDePrueba.h"

namespace trabex {

using namespace losas;
namespace {

struct Caso {
    explicit Caso(Losa datos) : Datos(std::move(datos)) { CalcularLosa(Datos, Generales, Resultados); }
    LosaCalculada Calculada() const { return {Datos, Generales, Resultados}; }

    Losa Datos;
    DatosGenerales Generales;
    ResultadosLosa Resultados;
};

TEST(ValoresLosa, LosDiagramasCierranConLosExtremosDelTramo) {
    std::mt19937 azar(7);
    for (int vez = 0; vez < 60; ++vez) {
        const Caso caso(prueba::LosaAlAzar(azar, vez % 2 == 1));
        std::vector<double> x(caso.Datos.Ejes.size()), y(x);
        for (const JuntaD& junta : caso.Datos.JuntasD) {
            x[static_cast<std::size_t>(junta.Junta)] += junta.x;
            y[static_cast<std::size_t>(junta.Junta)] += junta.y;
        }
        for (std::size_t i = 1; i < caso.Datos.Tramos.size(); ++i) {
            const Tramo& tramo = caso.Datos.Tramos[i];
            const double alargado = x[i + 1] - x[i];
            const double pendiente = std::atan((y[i + 1] - y[i]) / (tramo.LT + alargado));
            const ExtremosDeTramo e = ExtremosDe(caso.Calculada(), i);
            const auto puntos = EstacionesDeTramo(caso.Calculada(), i, pendiente);
            ASSERT_EQ(puntos.size(),
                      static_cast<std::size_t>(std::nearbyint(tramo.LT * 4)) + 1 + (tramo.p1 != 0 ? 1 : 0));
            const double escala = 1 + caso.Resultados.MaxCorte + caso.Resultados.MaxMomentoApoyo;
            EXPECT_NEAR(puntos.front().V, e.VA, 1e-9 * escala);
            if (std::fabs(alargado) > 1e-9) continue;  // such a span keeps its entered length in its stations
            EXPECT_NEAR(puntos.back().V, -e.VB, 1e-6 * escala);
            EXPECT_NEAR(puntos.back().M, e.MB, 1e-6 * escala);
        }
    }
}

TEST(ValoresLosa, BajoLaCargaPuntualElCorteDaUnSaltoEnUnMismoPunto) {
    Losa losa = prueba::LosaContinua({6}, 200);
    losa.Tramos[1].p1 = 1000;
    losa.Tramos[1].L1 = 3;
    const Caso caso(losa);
    const auto puntos = EstacionesDeTramo(caso.Calculada(), 1, 0);
    const auto salto = std::adjacent_find(puntos.begin(), puntos.end(),
                                          [](const auto& a, const auto& b) { return a.d == b.d; });
    ASSERT_NE(salto, puntos.end());
    EXPECT_DOUBLE_EQ(salto->d, 3);
    EXPECT_DOUBLE_EQ(salto->V - (salto + 1)->V, 1.2 * 1000);
    EXPECT_DOUBLE_EQ(salto->M, (salto + 1)->M);
    // 1.2·(200·6/2 + 1000/2) at the support; M = V·x − 1.2·200·x²/2
    EXPECT_NEAR(puntos.front().V, 1320, 1e-6);
    EXPECT_NEAR(salto->M, 1320 * 3 - 120 * 9, 1e-6);
}

TEST(ValoresLosa, UnTramoMuyCortoOMuyLargoNoTieneEstaciones) {
    const auto estaciones = [](double longitud) {
        return EstacionesDeTramo(Caso(prueba::LosaContinua({longitud}, 200)).Calculada(), 1, 0).size();
    };
    EXPECT_EQ(estaciones(0.124), 0U);  // half a strip goes to the even neighbour
    EXPECT_EQ(estaciones(0.125), 0U);
    EXPECT_EQ(estaciones(0.13), 2U);
    EXPECT_EQ(estaciones(1e9), 0U);
}

TEST(ValoresLosa, LasReaccionesSonPorMetroDeViga) {
    // 300·5/2 and 100·5/2 kgf of a rib, ribs every half metre
    Caso caso(prueba::LosaContinua({5}, 300, 100));
    caso.Resultados.ResultadoJunta[CasoVariable][2].RH = 7;
    caso.Resultados.ResultadoJunta[CasoPermanente][2].RH = -3;
    const ReaccionesPorMetro nervada = ReaccionesEnEje(caso.Calculada(), 2);
    EXPECT_NEAR(nervada.Permanente.V, 1500, 1e-6);
    EXPECT_NEAR(nervada.Variable.V, 500, 1e-6);
    EXPECT_NEAR(nervada.Total.V, 2000, 1e-6);
    EXPECT_EQ(nervada.Variable.H, 14);
    EXPECT_NEAR(nervada.Total.H, 8, 1e-9);
    EXPECT_NEAR(ReaccionMayorada(caso.Calculada(), 1), 1.2 * 750 + 1.6 * 250, 1e-6);  // of the rib
    caso.Datos.OpcionMaciza = true;
    EXPECT_NEAR(ReaccionesEnEje(caso.Calculada(), 1).Total.V, 1000, 1e-6);
}

TEST(ValoresLosa, ElMomentoSuperiorEsElDelTramoQueSigueYSoloSiTensaArriba) {
    Caso caso(prueba::LosaContinua({5, 5}, 100));
    auto& tramos = caso.Resultados.ResultadoTramo[CasoPermanente];
    tramos[1].MomentoA = 40;
    tramos[1].MomentoB = -90;
    tramos[2].MomentoA = -50;
    tramos[2].MomentoB = -10;
    EXPECT_EQ(MomentoSuperior(caso.Calculada(), 1), 0);
    EXPECT_EQ(MomentoSuperior(caso.Calculada(), 2), -60);
    EXPECT_EQ(MomentoSuperior(caso.Calculada(), 3), -12);
}

TEST(ValoresLosa, ElAceroMinimoVaPorLaSeccion) {
    Losa losa;
    const DatosGenerales generales;  // Fy 4200, 2.5 cm of cover
    EXPECT_NEAR(AceroMinimo(losa, generales), 14.0 / 4200 * 10 * 22.5, 1e-12);
    losa.OpcionMaciza = true;
    EXPECT_NEAR(AceroMinimo(losa, generales), 0.002 * 100 * 17.5, 1e-12);
}

TEST(ValoresLosa, ResultadosDeOtraLosaCuentanComoCeros) {
    const Caso caso(prueba::LosaContinua({5, 4}, 300, 150));
    const Losa otra = prueba::LosaContinua({3, 3, 3}, 300);
    for (const ResultadosLosa& ajenos : {ResultadosLosa{}, caso.Resultados}) {
        const LosaCalculada calculada{otra, caso.Generales, ajenos};
        EXPECT_EQ(ReaccionesEnEje(calculada, 2).Total.V, 0);
        EXPECT_EQ(ReaccionMayorada(calculada, 2), 0);
        EXPECT_EQ(ExtremosDe(calculada, 1).VA, 0);
        EXPECT_EQ(MomentoSuperior(calculada, 2), 0);
        EXPECT_EQ(DisenoEnEje(calculada, 2).AS1, 0);
        EXPECT_EQ(DisenoEnTramo(calculada, 1).AS2, 0);
        EXPECT_TRUE(EstacionesDeTramo(calculada, 1, 0).empty());
    }
}

}  // namespace
}  // namespace trabex
