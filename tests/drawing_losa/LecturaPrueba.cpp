#include <array>
#include <random>

#include "EnHoja.h"
#include "drawing/losa/LecturaDeHoja.h"
#include "drawing/losa/LugaresDeHoja.h"
#include "drawing/losa/ToqueDeHoja.h"

namespace trabex {
namespace {

/// A slab on a sheet that is pointed at.
struct Senalada : EnHoja {
    Senalada(Losa datos, std::uint8_t vista) : EnHoja(std::move(datos)) { Dibujar(vista); }
    /// `arriba` m over the line of a span, at a part of it.
    PuntoLienzo Punto(std::size_t tramo, double parte, double arriba) const {
        const auto entre = [&](const std::vector<double>& ejes) {
            return ejes[tramo] + parte * (ejes[tramo + 1] - ejes[tramo]);
        };
        const EstadoVista& v = Hoja.Vista;
        return {
            v.OrigenX + static_cast<std::int32_t>(std::lround(v.Escala * entre(Hoja.Ejes.EjesX))),
            v.OrigenY - static_cast<std::int32_t>(std::lround(v.Escala * (entre(Hoja.Ejes.EjesY) + arriba)))};
    }
    /// On the axis of a diagram.
    PuntoLienzo EnBanda(BandaDe cual, std::size_t tramo, double parte) const {
        PuntoLienzo punto = Punto(tramo, parte, 0);
        while (punto.y < 720 && BandaEn(Hoja, punto.x, punto.y) != cual) ++punto.y;
        return {punto.x, punto.y + 2};
    }
};

TEST(Toque, DiceQueSeVeEnCadaLugar) {
    Losa losa = prueba::LosaContinua({4, 5, 3}, 300, 100);
    losa.Tramos[2].p1 = 800;
    losa.Tramos[2].L1 = 2.5;
    losa.JuntasD.push_back({3, 0, 0.6});
    losa.Ejes[4].Tipo = Empotramiento;
    struct Caso {
        std::size_t Tramo;
        double Parte, Arriba;
        std::optional<Toque> Esperado;
    };
    const std::array<Caso, 14> casos{{{1, 0.5, 0, Toque{QueToca::Tramo, 1}},
                                      {3, 0.5, 0.1, Toque{QueToca::Tramo, 3}},
                                      {2, 0.2, -0.1, Toque{QueToca::Tramo, 2}},
                                      {1, 0.3, 0.35, Toque{QueToca::CargaUniforme, 1}},
                                      {2, 0.8, 0.5, Toque{QueToca::CargaUniforme, 2}},
                                      {2, 0.5, 0.8, Toque{QueToca::CargaPuntual, 2}},
                                      {2, 0.0, -0.25, Toque{QueToca::Apoyo, 2}},
                                      {3, 0.0, -0.3, Toque{QueToca::Apoyo, 3}},
                                      {3, 1.0, 0.2, Toque{QueToca::Apoyo, 4}},
                                      {1, 0.0, -1.31, Toque{QueToca::Eje, 1}},
                                      {2, 1.0, -1.31, Toque{QueToca::Eje, 3}},
                                      {1, 0.5, 0.9, std::nullopt},
                                      {1, 0.5, -1.0, std::nullopt},
                                      {1, -0.5, 0, std::nullopt}}};
    for (const std::uint8_t vista : {VistaGeometria, VistaFuerzas, VistaDiseno}) {
        const Senalada hoja(losa, vista);
        for (std::size_t k = 0; k < casos.size(); ++k) {
            const Caso& caso = casos[k];
            EXPECT_EQ(ToqueEn(hoja.Hoja, losa, hoja.Punto(caso.Tramo, caso.Parte, caso.Arriba)),
                      caso.Esperado)
                << "view " << int{vista} << ", case " << k;
        }
        // What was drawn may be more than the slab has by now.
        EXPECT_FALSE(ToqueEn(hoja.Hoja, prueba::LosaContinua({4}, 300), hoja.Punto(3, 0.5, 0)));
    }
}

TEST(Lectura, DiceLosEsfuerzosDeSuEstacionYElAceroQuePiden) {
    std::mt19937 azar(19);
    for (int k = 0; k < 30; ++k) {
        const Senalada caso(prueba::LosaAlAzar(azar, false), VistaFuerzas);
        const double C = caso.Generales.FCP;
        for (std::size_t i = 1; i < caso.Datos.Tramos.size(); ++i) {
            const Tramo& tramo = caso.Datos.Tramos[i];
            const double w = C * tramo.Wp + caso.Generales.FCV * tramo.WV;
            const ExtremosDeTramo e = ExtremosDe(caso.Calculada(), i);
            for (const BandaDe banda : {BandaDe::Cortes, BandaDe::Momentos}) {
                const auto leida = EstacionEn(caso.Hoja, caso.Calculada(), caso.EnBanda(banda, i, 0.37));
                ASSERT_TRUE(leida);
                EXPECT_EQ(leida->Tramo, i);
                const double d = leida->Punto.d;
                EXPECT_NEAR(d, 0.37 * tramo.LT, 1 / caso.Hoja.Vista.Escala);
                const double brazo = tramo.p1 != 0 && d >= tramo.L1 ? d - tramo.L1 : 0;
                EXPECT_NEAR(leida->Punto.M, e.MA + e.VA * d - w * d * d / 2 - C * tramo.p1 * brazo, 1e-6);
                EXPECT_NEAR(leida->Punto.V, e.VA - w * d - (brazo > 0 ? C * tramo.p1 : 0), 1e-6);
            }
            // Where the moment is largest the steel is what the design built there.
            const DisenoDeTramo diseno = DisenoEnTramo(caso.Calculada(), i);
            const auto campo = Releida(caso.Hoja, caso.Calculada(), {i, {diseno.x, 0, 0}});
            if (diseno.MT <= 0) continue;
            EXPECT_NEAR(AceroPara(caso.Calculada(), campo->Punto.M).AsInf, diseno.AS2, 0.02);
        }
    }
    Senalada maciza(prueba::LosaContinua({4, 4}, 300), VistaFuerzas);
    maciza.Datos.OpcionMaciza = true;
    EXPECT_EQ(
        TextoDeLectura(maciza.Hoja, maciza.Calculada(), {2, {1.5, 0, -123.4}}),
        "Tramo 2-3   x = 1,50 m   Mu = 0 kgf-m   Vu = -123 kgf   As Sup = 0,00 cm2/m   As Inf = 0,00 cm2/m");
    EXPECT_FALSE(EstacionEn(maciza.Hoja, maciza.Calculada(), maciza.Punto(1, 0.5, 0)));
}

TEST(Lectura, ElTecladoPasaPorTodasLasEstacionesYVuelve) {
    Losa losa = prueba::LosaContinua({4, 5}, 300);
    losa.Tramos[1].p1 = 500;
    losa.Tramos[1].L1 = 2;  // on a station, which comes twice
    const Senalada caso(losa, VistaFuerzas);
    std::vector<EstacionDeHoja> pasos;
    std::optional<EstacionDeHoja> actual;
    for (int k = 0; k < 45; ++k) {
        actual = EstacionVecina(caso.Hoja, caso.Calculada(), actual, true);
        ASSERT_TRUE(actual);
        if (!pasos.empty() && pasos.back().Tramo == actual->Tramo &&
            pasos.back().Punto.d == actual->Punto.d && pasos.back().Punto.V == actual->Punto.V)
            break;
        pasos.push_back(*actual);
    }
    EXPECT_EQ(pasos.size(), 18U + 21U);
    EXPECT_EQ(pasos[8].Punto.d, pasos[9].Punto.d);
    EXPECT_GT(pasos[8].Punto.V, pasos[9].Punto.V);
    for (std::size_t k = pasos.size() - 1; k-- > 0;) {
        actual = EstacionVecina(caso.Hoja, caso.Calculada(), actual, false);
        EXPECT_EQ(actual->Punto.d, pasos[k].Punto.d);
        EXPECT_EQ(actual->Punto.V, pasos[k].Punto.V);
    }
    EXPECT_TRUE(MiraDe(caso.Hoja, *actual));
    const Senalada otra(losa, VistaDiseno);
    EXPECT_FALSE(MiraDe(otra.Hoja, *actual));
    EXPECT_FALSE(EstacionVecina(otra.Hoja, otra.Calculada(), std::nullopt, true));
}

}  // namespace
}  // namespace trabex
