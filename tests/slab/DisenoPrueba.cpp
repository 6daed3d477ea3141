#include <cmath>

#include <gtest/gtest.h>

#include "slab/DisenoSeccion.h"
#include "slab/EsfuerzosTramo.h"
#include "support/LosasDePrueba.h"

namespace trabex {

using namespace losas;
namespace {

using prueba::LosaContinua;

TEST(EsfuerzosEnSeccion, RepiteLaEstacionDeLaCargaPuntual) {
    const Tramo tramo{6, 0, 0, 1000, 2};
    const DatosGenerales generales;
    EstacionPuntual estacion;
    double M = 0;
    double V = 0;
    std::vector<double> cortes;
    for (const double x : {0.0, 2.0, 4.0, 6.0}) {
        do {
            EsfuerzosEnSeccion(tramo, generales, x, 1, 0, 800, estacion, M, V);
            cortes.push_back(V);
        } while (estacion.RepitaEstacion);
    }
    EXPECT_EQ(cortes, (std::vector<double>{800, 800, -400, -400, -400}));
    EXPECT_EQ(M, 6 * 800 - 4 * 1200.0);
}

/// Span of 10 m, w = 1.2·100 = 120 kgf/m, P = 1.2·500 = 600 kgf at 4 m, on two supports: Vi = 960, V = 480
/// and −120 beside the load, so the moment is greatest under it; the walk sees it at the station at 4 m.
TEST(MomentoMaximo, BajoLaCargaPuntualYPasadaEsta) {
    const DatosGenerales g;
    const auto maximo = [&g](const Tramo& tramo, const ExtremosMayorados& e, double C = 1) {
        return MomentoMaximo(tramo, MayorarTramo(tramo, g, C), e);
    };
    const Tramo tramo{10, 100, 0, 500, 4.0001};
    const MomentoDeTramo bajo = maximo(tramo, {0, 959.99, 0, 840.01});
    EXPECT_NEAR(bajo.x, 4.01, 1e-9);
    // 4.01 shows more centimetres than 4.0001: the load's moment counts.
    EXPECT_NEAR(bajo.MT, 4.01 * 959.99 - 60 * 4.01 * 4.01 - 0.0099 * 600, 1e-6);
    // Lighter, and past the load: V = 0 at x = (Vi − P)/w = 400/120.
    const Tramo ligera{10, 100, 0, 500, 1};
    const MomentoDeTramo pasada = maximo(ligera, {-200, 1000, 0, 0});
    EXPECT_NEAR(pasada.x, 3.34, 1e-9);
    EXPECT_NEAR(pasada.MT, -200 + 3.34 * 1000 - 60 * 3.34 * 3.34 - 2.34 * 600, 1e-6);
    // Never down to zero inside, or already down at its start: nothing.
    EXPECT_EQ(maximo(ligera, {0, 5000, 0, 0}).MT, 0);
    EXPECT_EQ(maximo(ligera, {0, -1, 0, 0}).x, 0);
    // Inclined (C = 0.8): the loads across it are 0.8 of them, the span 12.5 m.
    const MomentoDeTramo inclinada = maximo(ligera, {0, 768, 0, 0}, 0.8);
    EXPECT_NEAR(inclinada.x, 3, 0.0126);  // (768 − 480)/96
}

TEST(MomentoMaximo, SinCargaInterior) {
    const DatosGenerales g;
    const auto maximo = [&g](const Tramo& tramo, const ExtremosMayorados& e) {
        return MomentoMaximo(tramo, MayorarTramo(tramo, g, 1), e);
    };
    const MomentoDeTramo m = maximo({6, 100, 50, 900, 6}, {-150, 600, 0, 0});  // w = 200, a load over a joint
    EXPECT_EQ(m.x, 3);
    EXPECT_EQ(m.MT, -150 + 3 * 600 - 200 * 9 / 2.0);
    EXPECT_EQ(maximo({6, 100, 50, 0, 0}, {0, 0.09, 0, 0}).x, 0);   // rounds to 0
    EXPECT_EQ(maximo({6, 100, 50, 0, 0}, {0, 1200, 0, 0}).MT, 0);  // at the other joint
    EXPECT_EQ(maximo({6, 0, 0, 0, 0}, {-10, 500, 0, 0}).x, 0);
}

/// The parabola is solved with the absolute value of the shear, also where it is negative: with w = 400,
/// M = 300 and V = ∓800, 200x² − 800x − 300 = 0 in place of 200x² + 800x − 300 = 0.
TEST(CalcularInflexion, ElCorteNegativoCuentaComoPositivo) {
    const Tramo tramo{6, 0, 250, 0, 0};
    for (const double V : {800.0, -800.0}) {
        const PuntosInflexion p = CalcularInflexion(tramo, {}, V, 300, 1);
        EXPECT_NEAR(p.salida1, 2 + std::sqrt(5.5), 1e-12);
        EXPECT_NEAR(p.salida2, 2 - std::sqrt(5.5), 1e-12);
    }
}

/// A clamped span of 8 m without load of its own, P = 1.2·1000 in the middle: M = −P·L/8 + P·x/2, zero at a
/// quarter and at three quarters; the walk goes by stations of 8 mm.
TEST(CalcularInflexion, ConCargaPuntualSeRecorreConElCorteConSuSigno) {
    const Tramo tramo{8, 0, 0, 1000, 4};
    const PuntosInflexion p = CalcularInflexion(tramo, {}, 600, -1200, 1);
    EXPECT_NEAR(p.salida2, 2, 0.0081);
    EXPECT_NEAR(p.salida1, 6, 0.0081);
    EXPECT_GE(p.salida2, 2 - 1e-9);
    EXPECT_GT(p.salida1, 6 - 1e-9);
    // Sagging from its start and negative shear: the moment falls through zero once, at 1200/600.
    const PuntosInflexion cae = CalcularInflexion(tramo, {}, -600, 1200, 1);
    EXPECT_EQ(cae.salida2, 0);
    EXPECT_NEAR(cae.salida1, 2, 0.0081);
}

TEST(CalcularInflexion, CasosSinPuntos) {
    const DatosGenerales generales;
    const auto sinPuntos = [](const PuntosInflexion& p) { return p.salida1 == 0 && p.salida2 == 0; };
    EXPECT_TRUE(sinPuntos(CalcularInflexion({4, 0, 0, 0, 0}, generales, 500, -200, 1)));
    EXPECT_TRUE(sinPuntos(CalcularInflexion({4, 500, 0, 0, 0}, generales, 100, -5000, 1)));
    // A point load over a joint takes no part; one inside is walked through.
    const PuntosInflexion sobreJunta = CalcularInflexion({4, 500, 0, 900, 4}, generales, 1200, -600, 1);
    EXPECT_NEAR(sobreJunta.salida2, 2 - std::sqrt(2), 1e-12);
    EXPECT_NEAR(sobreJunta.salida1, 2 + std::sqrt(2), 1e-12);
}

/// A rib of 10 by 22.5 cm carries Vc = 0.583·√250·10·22.5·0.75 = 1555.55 kgf and Mlim = 2232.56 kgf·m.
TEST(CalcularMacizado, AManoPorCorteYPorMomento) {
    Losa losa = LosaContinua({5, 7}, 350, 250);
    losa.Tramos[2].Wp = 9999;  // its own load has no say in the length
    const DisenoSeccion seccion(losa, {});
    const double w = 820;
    EXPECT_NEAR(seccion.CalcularMacizado(2, -2000, 0, 1), (2000 - 1555.55) / w, 1e-5);
    EXPECT_NEAR(seccion.CalcularMacizado(2, 2000, 0, 0.8), (2000 - 1555.55) / (0.8 * w), 1e-5);
    EXPECT_EQ(seccion.CalcularMacizado(2, 1500, -2000, 1), 0);
    // 2·(3000 − 2232.56)/820 = 1.87180 and x0 = 1230/820: 1.5 − √(2.25 − 1.8718).
    EXPECT_NEAR(seccion.CalcularMacizado(2, 1230, -3000, 1), 1.5 - std::sqrt(2.25 - 1.87180), 1e-4);
    EXPECT_EQ(seccion.CalcularMacizado(2, 1000, 3000, 1), 7);  // never falls to it: the whole right span
    EXPECT_EQ(seccion.CalcularMacizado(1, 9000, 9000, 1),
              0);  // no load stands to the left of the first joint
}

}  // namespace
}  // namespace trabex
