#include <cmath>
#include <span>

#include <gtest/gtest.h>

#include "helical/CalcularEscaleraH.h"
#include "helical/DisenoEscaleraH.h"
#include "helical/EstacionesHelice.h"
#include "support/EscalerasTrabajadas.h"

namespace trabex::prueba {

using namespace helices;
namespace {

TEST(DisenoEscaleraH, EstribosDeUnaSeccion) {
    for (const auto& caso : EstribosDeHelices) {
        const EstribosHelice estribos =
            EstribosEscalera(caso.Cortante, caso.Torsion, caso.Ancho, caso.Alto, caso.g);
        EXPECT_EQ(estribos.Barra, caso.Barra) << caso.Que;
        EXPECT_EQ(estribos.Separacion, caso.Separacion) << caso.Que;
        EXPECT_NEAR(estribos.Longitudinal, caso.Longitudinal, 1e-9) << caso.Que;
    }
}

TEST(DisenoEscaleraH, AceroMinimoDeLosaODeViga) {
    DatosEscaleraH e = EscaleraHTrabajada();
    EXPECT_NEAR(AceroMinimo(e, {}), 90 * 0.002 * 27.5, 1e-12);
    e.B = 0.27;  // deeper than wide: a beam
    EXPECT_NEAR(AceroMinimo(e, {}), 14.0 / 4200 * 27 * 27.5, 1e-12);
}

/// A helix worked apart: every field of stations of every kind in both halves.
TEST(DisenoEscaleraH, HeliceTrabajada) {
    const DatosEscaleraH d = EscaleraHTrabajada();
    ResultadosEscaleraH r;
    CalcularEscaleraH(d, GeneralesTrabajados, r);
    ASSERT_FALSE(r.Error);
    ASSERT_EQ(r.NEst, 14U);
    EXPECT_NEAR(r.L, 9.4073246682, 1e-9);
    EXPECT_NEAR(r.Alfa, 18.786274458, 1e-8);
    EXPECT_EQ(r.FV, 42333);
    EXPECT_EQ(r.Fh, 44664);
    const EstacionesHelice lugares = EstacionesDe(d);
    for (const bool superior : {true, false}) {
        const auto& tramo = superior ? r.TramoSuperior : r.TramoInferior;
        const std::span<const EstacionTrabajada> esperadas =
            superior ? std::span(EstacionesSuperiores) : std::span(EstacionesInferiores);
        for (const EstacionTrabajada& e : esperadas) {
            const auto i = static_cast<std::size_t>((e.Grados + (superior ? 122 : 0)) / d.Inter + 1);
            const EstacionEscaleraH& p = tramo[i];
            const auto igual = [&](double obtenido, double esperado, const char* campo) {
                EXPECT_NEAR(obtenido, esperado, 1e-5 + 1e-9 * std::fabs(esperado))
                    << campo << " " << e.Grados << (superior ? " superior" : " inferior");
            };
            EXPECT_EQ(superior ? lugares.GradosSuperior(i) : lugares.GradosInferior(i), e.Grados);
            igual(p.N, e.N, "N");
            igual(p.QX, e.QX, "QX");
            igual(p.QY, e.QY, "QY");
            igual(p.MT, e.MT, "MT");
            igual(p.MX, e.MX, "MX");
            igual(p.MS1, e.MX < 0 ? e.MX : 0, "MS1");
            igual(p.MI1, e.MX < 0 ? 0 : e.MX, "MI1");
            igual(p.MY, e.MY, "MY");
            igual(p.TU, e.TU, "TU");
            igual(p.ASXS, e.ASXS, "ASXS");
            igual(p.ASXI, e.ASXI, "ASXI");
            igual(p.ASMin, 90 * 0.002 * 27, "ASMin");
            igual(p.AsY, e.AsY, "AsY");
            EXPECT_EQ(p.AsT, e.AsT) << e.Grados;
            EXPECT_EQ(p.SEP, e.SEP) << e.Grados;
            igual(p.LON, e.LON, "LON");
        }
    }
}

}  // namespace
}  // namespace trabex::prueba
