#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "slab/CalcularLosa.h"
#include "slab/DisenoSeccion.h"
#include "slab/EsfuerzosTramo.h"
#include "support/LosasDePrueba.h"

namespace trabex {

using namespace losas;
namespace {

using prueba::LosaContinua;

ResultadosLosa Calculada(const Losa& losa, const DatosGenerales& generales = {}) {
    ResultadosLosa r;
    CalcularLosa(losa, generales, r);
    EXPECT_FALSE(r.Error);
    return r;
}

/// Factored moment at x m along a horizontal span, past its point load if it stands there.
double MomentoEn(const Losa& losa, const ResultadosLosa& r, std::size_t i, double x, double* V = nullptr) {
    const DatosGenerales generales;
    const ExtremosMayorados e = MayorarExtremos(r, generales, i);
    EstacionPuntual estacion{true, false};
    double M = 0;
    double corte = 0;
    EsfuerzosEnSeccion(losa.Tramos[i], generales, x, 1, e.Mi, e.Vi, estacion, M, corte);
    if (V != nullptr) *V = corte;
    return M;
}

TEST(EsfuerzosEnSeccion, LlegaAlOtroExtremo) {
    std::mt19937 azar(3);
    for (int vez = 0; vez < 50; ++vez) {
        const Losa losa = prueba::LosaAlAzar(azar, false);
        const ResultadosLosa r = Calculada(losa);
        for (std::size_t i = 1; i < losa.Tramos.size(); ++i) {
            const ExtremosMayorados e = MayorarExtremos(r, {}, i);
            double V = 0;
            EXPECT_NEAR(MomentoEn(losa, r, i, losa.Tramos[i].LT, &V), e.Mj, 1e-6);
            EXPECT_NEAR(V, -e.Vj, 1e-6);
        }
    }
}

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
/// At 2 m of the horizontal the member of a 3 in 4 slope is 2.5 m on, and its loads across it are 0.8 of
/// them.
TEST(EsfuerzosEnSeccion, EnUnTramoInclinado) {
    EstacionPuntual estacion{true, false};
    double M = 0;
    double V = 0;
    EsfuerzosEnSeccion({4, 100, 50, 500, 1}, {}, 2, 0.8, -300, 900, estacion, M, V);
    const double w = 0.8 * (120 + 80);
    const double P = 0.8 * 600;
    EXPECT_NEAR(V, 900 - w * 2.5 - P, 1e-9);
    EXPECT_NEAR(M, -300 + 900 * 2.5 - w * 2.5 * 2.5 / 2 - P * 1.25, 1e-9);
}

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

TEST(MomentoMaximo, ElVoladizoNoTiene) {
    Losa losa = LosaContinua({4, 1.5}, 300, 200);
    losa.Ejes[3].Tipo = SinApoyo;
    const ResultadosLosa r = Calculada(losa);
    EXPECT_EQ(r.DisenoTramo[2].MT, 0);
    EXPECT_EQ(r.DisenoTramo[2].AS2, 0);
    EXPECT_GT(r.DisenoEje[2].AS1, 0);
    EXPECT_EQ(r.DisenoEje[3].AS1, 0);
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

/// Two equal ribbed spans of 5 m: w = 1.2·350 + 1.6·250 = 820 kgf/m, M = w·L²/8, V = 5/8·w·L at the middle.
TEST(CalcularLosa, MacizadosDeDosTramosNervados) {
    const Losa losa = LosaContinua({5, 5}, 350, 250);
    const ResultadosLosa r = Calculada(losa);
    const double Vc = 0.53 * 1.1 * std::sqrt(250.0) * 10 * 22.5 * 0.75;
    EXPECT_NEAR(r.DisenoEje[2].MczI, (2562.5 - Vc) / 820, 1e-4);
    EXPECT_NEAR(r.DisenoEje[2].MczD, r.DisenoEje[2].MczI, 1e-4);
    EXPECT_EQ(r.DisenoEje[1].MczI, 0);
    EXPECT_EQ(r.DisenoEje[1].MczD, 0);  // no load stands to the left of the first joint
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

TEST(CalcularLosa, LosMacizadosQueNoSeJuzganSonCero) {
    Losa losa = LosaContinua({6, 6, 6}, 350, 250);
    losa.Ejes[4].Tipo = Empotramiento;
    ASSERT_GT(Calculada(losa).DisenoEje[4].MczI, 0.3);
    losa.Ejes[3].Tipo = SinApoyo;  // the last zone goes by the support of the joint before
    EXPECT_EQ(Calculada(losa).DisenoEje[4].MczI, 0);
    losa.OpcionMaciza = true;
    losa.Ejes[3].Tipo = RodilloEnX;
    const ResultadosLosa maciza = Calculada(losa);
    for (const DisenoDeEje& eje : maciza.DisenoEje) EXPECT_EQ(eje.MczI + eje.MczD, 0);
}

/// Mu at the middle support, from both of its spans.
TEST(CalcularLosa, ElAceroDelEjeVieneDelTramoDeSuDerecha) {
    Losa losa = LosaContinua({5, 3}, 400, 300);
    losa.OpcionMaciza = true;
    const ResultadosLosa r = Calculada(losa);
    // Solid strip of 1 m by 0.20, Mu = 960·(5³ + 3³)/(8·(5 + 3)): As by equilibrium of the stress block.
    const double M = 960.0 * (125 + 27) / 64;
    const double As = r.DisenoEje[2].AS1;
    EXPECT_NEAR(0.9 * As * 4200 * (17.5 - As * 4200 / (1.7 * 250 * 100)) / 100, M, 2e-3 * M);
    EXPECT_EQ(r.DisenoEje[2].AS2, 0);
    EXPECT_EQ(r.DisenoTramo[1].AS1, 0);
    EXPECT_GT(r.DisenoTramo[1].AS2, 0);
}

/// A roof of two members of 5 m at 3 in 4 on pins, its apex free: each a beam clamped at the apex, but for
/// the shortening of the members. Loads go along the members: w·C = 800·0.8 across them.
TEST(CalcularLosa, LosaInclinadaEntera) {
    Losa losa = LosaContinua({4, 4}, 500, 0);
    losa.OpcionMaciza = true;
    losa.Ejes[2].Tipo = SinApoyo;
    losa.Ejes[3].Tipo = ApoyoFijo;
    losa.JuntasD.push_back({2, 0, -3});
    const ResultadosLosa r = Calculada(losa);
    const auto& junta = r.ResultadoJunta[1];
    for (std::size_t j = 1; j <= 3; ++j) {
        EXPECT_EQ(junta[j].Eje, std::to_string(j));
        EXPECT_EQ(junta[j].x, 4.0 * static_cast<double>(j - 1));
        EXPECT_EQ(junta[j].y, j == 2 ? -3 : 0);
    }
    EXPECT_NEAR(junta[1].RV, 2500, 0.05);
    // About the apex: 4·RV − 3·RH − 2500·2 = M, with M ≈ −400·5²/8 at the apex.
    const double M = r.ResultadoTramo[1][1].MomentoB;
    EXPECT_NEAR(M, -1250, 10);
    EXPECT_NEAR(std::fabs(junta[1].RH), (4 * 2500 - 2500 * 2 - M) / 3, 0.1);
    EXPECT_NEAR(junta[1].RH, -junta[3].RH, 1e-6);
    EXPECT_NEAR(r.ResultadoTramo[1][1].AxialA, r.ResultadoTramo[1][2].AxialB, 1e-6);
    // Vi = 3/8·480·5 and w = 480: x = 1.875, MT = 9/128·480·25.
    EXPECT_NEAR(r.DisenoTramo[1].x, 1.875, 0.01);
    EXPECT_NEAR(r.DisenoTramo[1].MT, 9 / 128.0 * 480 * 25, 10);
    EXPECT_NEAR(r.DisenoEje[2].PtoI, 1.25, 0.02);
}

}  // namespace
}  // namespace trabex
