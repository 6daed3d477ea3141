#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>

#include "slab/Avisos.h"
#include "slab/CalcularLosa.h"
#include "support/LosasDePrueba.h"

namespace trabex::prueba {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

std::vector<std::string> LineasDe(const Losa& losa, const ResultadosLosa& r, const DatosGenerales& g = {}) {
    std::vector<std::string> lineas;
    for (const Aviso& aviso : AvisosDe({losa, g, r}))
        lineas.push_back(std::string(NombreDe(aviso.Peso)) + ". " + EnUnaLinea(aviso));
    return lineas;
}

std::vector<std::string> LineasDe(const Losa& losa, const DatosGenerales& g = {}) {
    ResultadosLosa r;
    CalcularLosa(losa, g, r);
    return LineasDe(losa, r, g);
}

/// Spans so loaded that nothing is to be told of them.
Losa LosaSinAvisos() {
    Losa losa = LosaContinua({4, 4}, 300, 200);
    losa.Ejes[1].Eje = "A";
    losa.Ejes[2].Eje = "B";
    losa.Ejes[3].Eje = "C";
    return losa;
}

TEST(Avisos, UnaLosaCorrienteNoTieneNinguno) {
    EXPECT_THAT(LineasDe(LosaSinAvisos()), IsEmpty());
    EXPECT_THAT(LineasDe(Losa{}), IsEmpty());
    EXPECT_THAT(LineasDe(LosaContinua({4, 0}, 300)), IsEmpty());
}

TEST(Avisos, LaLosaQueNoSeSostiene) {
    Losa losa = LosaSinAvisos();
    losa.Ejes[1].Tipo = RodilloEnX;
    EXPECT_EQ(LineasDe(losa)[0],
              "advertencia. Eje C: Nada sujeta la losa en dirección X; sin cargas en esa dirección, los "
              "números valen.");
    losa.JuntasD.push_back({2, 0, 0.5});
    EXPECT_EQ(LineasDe(losa)[0], "falla. Eje C: La losa no se sostiene: nada la sujeta en dirección X.");
    losa.JuntasD.clear();
    losa.Ejes[1].Tipo = ApoyoFijo;
    losa.Ejes[2].Tipo = losa.Ejes[3].Tipo = SinApoyo;
    EXPECT_EQ(LineasDe(losa)[0], "falla. Eje C: La losa no se sostiene: nada impide su giro.");
    losa.Ejes[1].Tipo = RodilloEnY;
    EXPECT_THAT(LineasDe(losa),
                Contains("falla. Eje C: La losa no se sostiene: nada la sujeta en dirección Y."));
}

TEST(Avisos, ElCalculoInterrumpido) {
    Losa losa = LosaSinAvisos();
    losa.JuntasD.push_back({2, -4, 0});
    EXPECT_EQ(LineasDe(losa)[0],
              "falla. El cálculo terminó con el error 11 (División por cero): los resultados están "
              "incompletos.");
}

TEST(Avisos, LasReaccionesQueNoEquilibran) {
    const Losa losa = LosaSinAvisos();
    ResultadosLosa r;
    CalcularLosa(losa, {}, r);
    const Equilibrio e = EquilibrioDe({losa, {}, r}, CasoPermanente);
    EXPECT_EQ(e.Cargas, 2400);
    EXPECT_NEAR(e.RV, 2400, 1e-6);
    r.ResultadoJunta[2][1].RV += 1.5;
    EXPECT_THAT(LineasDe(losa, r), IsEmpty());  // under a thousandth of 1600
    r.ResultadoJunta[2][1].RV += 0.2;
    r.ResultadoJunta[1][1].RH = -5;
    EXPECT_THAT(LineasDe(losa, r),
                testing::ElementsAre("advertencia. Las reacciones horizontales de la carga permanente suman "
                                     "-5,00 kgf y no hay cargas en esa dirección.",
                                     "advertencia. Las reacciones verticales de la carga variable suman "
                                     "1.601,70 kgf y las cargas 1.600,00 kgf."));
}

/// Loads along inclined members, and the point loads that the analysis sees, are what the supports take.
TEST(Avisos, LasLosasDeIngenierosEquilibran) {
    std::mt19937 azar(23);
    for (int vez = 0; vez < 300; ++vez) {
        const Losa losa = LosaAlAzar(azar, vez % 2 == 0);
        ResultadosLosa r;
        CalcularLosa(losa, {}, r);
        const Equilibrio e = EquilibrioDe({losa, {}, r}, CasoPermanente);
        // Displacements under 1e-8 count as none: some tenths of a kgf a span go with them.
        EXPECT_NEAR(e.RV, e.Cargas, 0.15 * static_cast<double>(losa.Tramos.size())) << vez;
        EXPECT_NEAR(e.RH, 0, 0.5 * static_cast<double>(losa.Tramos.size())) << vez;
        EXPECT_THAT(LineasDe(losa, r), Not(Contains(StartsWith("advertencia. Las reacciones")))) << vez;
    }
}

TEST(Avisos, LasCargasQueNoEntranEnElAnalisis) {
    Losa losa = LosaSinAvisos();
    const auto con = [&losa](double L1) {
        losa.Tramos[2].p1 = 1900;
        losa.Tramos[2].L1 = L1;
        return LineasDe(losa);
    };
    const std::string sobreApoyo =
        "advertencia. Tramo B-C: La carga puntual de 1.900 kgf está sobre un apoyo: no entra en el análisis "
        "ni "
        "en las reacciones.";
    EXPECT_THAT(con(0), Contains(sobreApoyo));
    EXPECT_THAT(con(4), Contains(sobreApoyo));
    EXPECT_THAT(
        con(4.5),
        Contains("advertencia. Tramo B-C: La carga puntual de 1.900 kgf está a 4,50 m, fuera del tramo "
                 "de 4,00 m: no entra en el análisis."));
    EXPECT_THAT(con(-0.5), Contains(testing::HasSubstr("está a -0,50 m, fuera del tramo")));
    EXPECT_THAT(con(2), Not(Contains(StartsWith("advertencia"))));
    losa.Ejes[3].Tipo = SinApoyo;
    EXPECT_THAT(con(4), Not(Contains(StartsWith("advertencia"))));
}

/// A solid strip of 1 m by 0.20: the minimum is 0.0018·100·20 = 3.6 cm² or what the sheet shows.
TEST(Avisos, ElAceroBajoElMinimoYElComprimido) {
    Losa losa = LosaSinAvisos();
    losa.OpcionMaciza = true;
    losa.Tramos[1].Wp = losa.Tramos[2].Wp = 100;
    losa.Tramos[1].WV = losa.Tramos[2].WV = 0;
    const std::vector<std::string> pocas = LineasDe(losa);
    ASSERT_EQ(pocas.size(), 3U);
    // w = 120 kgf/m: M = w·L²/8 = 240 kgf·m over d = 17.5 cm, 135 in the spans.
    EXPECT_THAT(pocas[1],
                StartsWith("nota. Eje B: El acero superior de 0,36 cm² es menor que el mínimo de "));
    EXPECT_THAT(pocas[0],
                StartsWith("nota. Tramo A-B: El acero inferior de 0,20 cm² es menor que el mínimo"));
    EXPECT_THAT(pocas[2], StartsWith("nota. Tramo B-C: El acero inferior de 0,20 cm²"));

    // Over a joint without support the moment sags: both notices tell the faces the other way about.
    losa.Ejes[2].Tipo = SinApoyo;
    EXPECT_THAT(LineasDe(losa)[0], StartsWith("nota. Eje B: El acero inferior de 1,46 cm²"));
    losa.Tramos[1].Wp = losa.Tramos[2].Wp = 1500;
    EXPECT_THAT(LineasDe(losa),
                Contains(testing::MatchesRegex(
                    "nota. Eje B: Necesita .* cm² de acero a compresión en la cara superior.")));
    losa.Tramos[1].p1 = 9000;
    losa.Tramos[1].L1 = 3.5;
    EXPECT_THAT(LineasDe(losa),
                Contains(testing::MatchesRegex(
                    "nota. Tramo A-B: Necesita .* cm² de acero a compresión en la cara superior.")));

    // A rib of 10 by 22.5 cm takes 2009 kgf·m without compression steel: w·L²/8 = 2400 at the middle axis.
    losa = LosaSinAvisos();
    losa.Tramos[1].Wp = losa.Tramos[2].Wp = 1000;
    losa.Tramos[1].WV = losa.Tramos[2].WV = 0;
    EXPECT_THAT(LineasDe(losa),
                testing::ElementsAre(testing::MatchesRegex(
                    "nota. Eje B: Necesita 0,.. cm² de acero a compresión en la cara inferior.")));
}

TEST(Avisos, ElAceroNegativoDeUnaSeccionDelgada) {
    Losa losa = LosaSinAvisos();
    losa.Ho = 0.04;  // less than two covers: the couple of steels turns over
    EXPECT_THAT(LineasDe(losa),
                Contains(testing::MatchesRegex(
                    "falla. Eje B: El acero sale negativo \\(-.*cm²\\): la sección es demasiado "
                    "delgada para su recubrimiento.")));
}

TEST(Avisos, ElResumenDiceElMasGrave) {
    EXPECT_EQ(Resumen({}), "");
    const Avisos avisos{{Gravedad::Nota, "Uno.", "Eje A"},
                        {Gravedad::Falla, "Dos.", ""},
                        {Gravedad::Falla, "Tres.", "Eje B"}};
    EXPECT_EQ(Resumen(avisos), "Dos. (y 2 avisos más)");
    EXPECT_EQ(Resumen({avisos[0], avisos[0]}), "Eje A: Uno. (y 1 aviso más)");
    EXPECT_EQ(Resumen({avisos[0]}), "Eje A: Uno.");
    EXPECT_TRUE(HayFalla(avisos));
    EXPECT_FALSE(HayFalla({avisos[0]}));
}

}  // namespace
}  // namespace trabex::prueba
