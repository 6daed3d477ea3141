#include <cmath>

#include <gtest/gtest.h>

#include "slab/Banda.h"
#include "slab/CalcularLosa.h"
#include "slab/ValoresLosa.h"
#include "support/LosasDePrueba.h"

namespace trabex::prueba {
namespace {

ResultadosLosa Calculada(const Losa& losa, const DatosGenerales& generales = {}) {
    ResultadosLosa r;
    CalcularLosa(losa, generales, r);
    return r;
}

TEST(Analizar, LosaSinCalculoNoTocaLosResultados) {
    ResultadosLosa r = Calculada(LosaUniforme(3, 5, 300, 200));
    const double antes = r.ResultadoTramo[1][2].MomentoA;
    CalcularLosa(Losa{}, {}, r);
    CalcularLosa(LosaContinua({4, 0, 4}, 300), {}, r);
    EXPECT_EQ(r.ResultadoTramo[1][2].MomentoA, antes);
    EXPECT_EQ(r.DisenoEje.size(), 5U);
    EXPECT_FALSE(r.Error);
}

int CodigoDe(const Losa& losa, const DatosGenerales& generales = {}) {
    const ResultadosLosa r = Calculada(losa, generales);
    return r.Error ? r.Error->Codigo() : 0;
}

TEST(Analizar, ErroresDeEjecucion) {
    EXPECT_EQ(CodigoDe(LosaUniforme(10919, 5, 300)), 0);
    EXPECT_EQ(CodigoDe(LosaUniforme(10920, 5, 300)), 6);
    EXPECT_EQ(CodigoDe(LosaUniforme(40000, 5, 300)), 6);

    Losa corrida = LosaContinua({4, 4}, 300);
    corrida.JuntasD.push_back({4, 0, 0.5});
    EXPECT_EQ(CodigoDe(corrida), 9);
    corrida.JuntasD.back().Junta = -1;
    EXPECT_EQ(CodigoDe(corrida), 9);

    Losa vertical = LosaContinua({4, 4}, 300);
    vertical.JuntasD.push_back({2, -4, 3});
    vertical.Tramos[1].p1 = 100;
    vertical.Tramos[1].L1 = 1;
    EXPECT_EQ(CodigoDe(vertical), 11);

    Losa coincidente = LosaContinua({4, 4}, 300);
    coincidente.JuntasD.push_back({2, -4, 0});
    EXPECT_EQ(CodigoDe(coincidente), 11);

    Losa incompleta = LosaContinua({4, 4}, 300);
    incompleta.Ejes.pop_back();
    EXPECT_EQ(CodigoDe(incompleta), 9);

    DatosGenerales sinConcreto;
    sinConcreto.FC = -250;
    EXPECT_EQ(CodigoDe(LosaContinua({4}, 300), sinConcreto), 5);
}

/// 2·d1 = 8 and a direction without stiffness: unloaded it stays where it is, loaded it divides by zero.
TEST(CalculoDPZ, UnaDireccionSinRigidez) {
    for (const double carga : {0.0, 3.0}) {
        MatrizBanda<6> K(8);
        K(1, 1) = 2;
        std::vector<ParDeCasos> F(8);
        F[0] = {8, -4};
        F[1] = {0, carga};
        CalculoDPZ(K, F, 2);
        if (carga == 0) {
            EXPECT_EQ(F[0], (ParDeCasos{4, -2}));
        }
        EXPECT_EQ(std::isinf(F[1][1]), carga != 0);
        EXPECT_EQ(FilasSinPivote(K, {2, 0}), std::vector<std::size_t>{2});
    }
}

/// Numbers that no engineer enters end the calculation with an error or leave finite results.
TEST(Analizar, NumerosAbsurdosDanErrorONumeros) {
    const auto finitos = [](const ResultadosLosa& r) {
        bool todos = true;
        for (const std::size_t caso : {CasoPermanente, CasoVariable}) {
            for (const EsfuerzosTramo& t : r.ResultadoTramo[caso])
                todos = todos && std::isfinite(t.MomentoA + t.CorteA + t.AxialA + t.MomentoB + t.CorteB);
        }
        for (const DisenoDeTramo& t : r.DisenoTramo)
            todos = todos && std::isfinite(t.MT + t.x + t.AS1 + t.AS2);
        for (const DisenoDeEje& e : r.DisenoEje)
            todos = todos && std::isfinite(e.AS1 + e.AS2 + e.MczI + e.MczD + e.PtoI + e.PtoD);
        return todos;
    };
    int errores = 0;
    for (const double luz : {1e-320, 1e-300, 1e-9, -5.0, 1e12, 1e200, 1e308}) {
        for (const std::int32_t carga : {0, 2147483647, -2147483647 - 1}) {
            Losa losa = LosaContinua({luz, 3, luz}, carga, carga);
            losa.Tramos[2].p1 = carga;
            losa.Tramos[2].L1 = 1;
            losa.Tramos[1].p1 = carga;
            losa.Tramos[1].L1 = luz / 2;
            const ResultadosLosa r = Calculada(losa);
            EXPECT_TRUE(finitos(r)) << luz << ' ' << carga;
            errores += r.Error ? 1 : 0;
        }
    }
    EXPECT_GT(errores, 5);
    EXPECT_LT(errores, 21);
}

/// All that was stored before the first fault stays, in the order of the calculation.
TEST(Faltas, ElAceroDeUnaJuntaNoCaeConElDeLaUltima) {
    // Without room between its two steels the section has none in compression: only the clamped end needs it.
    Losa losa = LosaContinua({1.5, 3}, 200);
    losa.OpcionMaciza = true;
    losa.Hm = 0.05;
    losa.Ejes[3].Tipo = Empotramiento;
    losa.Tramos[2].p1 = 300;
    losa.Tramos[2].L1 = 2.9;
    losa.Tramos[2].Wp = 280;
    const ResultadosLosa r = Calculada(losa);
    ASSERT_TRUE(r.Error);
    EXPECT_EQ(r.Error->Codigo(), 11);
    EXPECT_GT(r.DisenoEje[2].AS1, 0);
    EXPECT_EQ(r.DisenoEje[3].AS1, 0);
    EXPECT_EQ(r.DisenoEje[2].PtoD, 0);
    EXPECT_GT(r.DisenoEje[1].PtoD + r.DisenoEje[2].PtoI, 0);
    EXPECT_EQ(r.DisenoTramo[1].AS2, 0);
    EXPECT_GT(r.DisenoTramo[2].MT, 0);
}

TEST(Faltas, ElCasoPermanenteQuedaCuandoFallaElVariable) {
    Losa losa = LosaContinua({1e153, 1e153}, 0, 2000000000);
    const ResultadosLosa r = Calculada(losa);
    ASSERT_TRUE(r.Error);
    EXPECT_EQ(r.Error->Codigo(), 6);
    EXPECT_EQ(r.ResultadoTramo[1].size(), 3U);
    EXPECT_TRUE(r.ResultadoTramo[2].empty() && r.ResultadoJunta[1].empty());
    EXPECT_TRUE(r.DisenoTramo.empty());
}

TEST(Faltas, LosTramosAnterioresQuedanYElCodigoEsElDeLaPrimera) {
    Losa losa = LosaContinua({4, 4, 4}, 0);
    losa.Tramos[3].Wp = 900;
    for (EjeLosa& eje : losa.Ejes) eje.Tipo = Empotramiento;
    losa.Tramos[1].Wp = 100;
    DatosGenerales g;
    g.FCP = 1e305;  // 400 kgf·m times it is a number, 3600 is none
    ResultadosLosa r = Calculada(losa, g);
    ASSERT_TRUE(r.Error);
    EXPECT_EQ(r.Error->Codigo(), 6);
    EXPECT_GT(r.DisenoTramo[1].MT, 0);
    EXPECT_EQ(r.DisenoTramo[3].MT, 0);
    EXPECT_NEAR(r.MaxMomentoApoyo / 1e305, 400.0 / 3, 1e-6);
    EXPECT_EQ(r.ResultadoJunta[2].size(), 5U);
    EXPECT_TRUE(r.DisenoEje.empty());

    // At the pin 0/0, at the clamped end something by 0.
    Losa voladizo = LosaContinua({4}, 300);
    voladizo.Ejes[2].Tipo = Empotramiento;
    g = {};
    g.FiMomento = 0;
    EXPECT_EQ(CodigoDe(voladizo, g), 5);
    voladizo.Ejes[1].Tipo = Empotramiento;
    EXPECT_EQ(CodigoDe(voladizo, g), 11);
}

/// A calculation cut short leaves nothing of the one before it.
TEST(Faltas, LosResultadosAnterioresNoQuedan) {
    ResultadosLosa r = Calculada(LosaUniforme(3, 5, 300, 200));
    Losa corrida = LosaContinua({4, 4}, 300);
    corrida.JuntasD.push_back({4, 0, 0.5});
    CalcularLosa(corrida, {}, r);
    ASSERT_TRUE(r.Error);
    EXPECT_TRUE(r.ResultadoTramo[1].empty() && r.ResultadoJunta[2].empty());
    EXPECT_TRUE(r.DisenoEje.empty() && r.DisenoTramo.empty());
    EXPECT_EQ(r.MaxCorte + r.MaxMomentoApoyo + r.MaxMomentoTramo, 0);
    CalcularLosa(LosaUniforme(2, 5, 300), {}, r);
    EXPECT_FALSE(r.Error);
    EXPECT_EQ(r.DisenoEje.size(), 4U);
    // Spans that cancel out are analysed and not designed.
    CalcularLosa(LosaContinua({5, -5}, 300), {}, r);
    EXPECT_TRUE(r.DisenoEje.empty());
    EXPECT_EQ(r.ResultadoTramo[1].size(), 3U);
}

TEST(ValoresLosa, UnTramoMuyCortoOMuyLargoNoTieneEstaciones) {
    const auto estaciones = [](double longitud) {
        const Losa losa = LosaContinua({longitud}, 200);
        return EstacionesDeTramo({losa, {}, Calculada(losa)}, 1, 0).size();
    };
    EXPECT_EQ(estaciones(0.124), 0U);  // half a strip goes to the even neighbour
    EXPECT_EQ(estaciones(0.125), 0U);
    EXPECT_EQ(estaciones(0.13), 2U);
    EXPECT_EQ(estaciones(1e9), 0U);
}

TEST(ValoresLosa, ResultadosDeOtraLosaCuentanComoCeros) {
    const Losa losa = LosaContinua({3, 3, 3}, 300);
    const DatosGenerales generales;
    for (const ResultadosLosa& ajenos : {ResultadosLosa{}, Calculada(LosaContinua({5, 4}, 300, 150))}) {
        const LosaCalculada calculada{losa, generales, ajenos};
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
}  // namespace trabex::prueba
