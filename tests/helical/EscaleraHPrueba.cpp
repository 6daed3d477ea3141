#include <algorithm>
#include <cmath>
#include <span>

#include <gtest/gtest.h>

#include "helical/Avisos.h"
#include "helical/CalcularEscaleraH.h"
#include "helical/DisenoEscaleraH.h"
#include "helical/EstacionesHelice.h"
#include "support/EscalerasTrabajadas.h"

namespace trabex::prueba {

using namespace helices;
namespace {

DatosEscaleraH Modelo() {
    return EscaleraHNuevaDe("H-1", "");
}

ResultadosEscaleraH Calculada(const DatosEscaleraH& escalera, const DatosGenerales& generales = {}) {
    ResultadosEscaleraH r;
    CalcularEscaleraH(escalera, generales, r);
    EXPECT_FALSE(r.Error);
    return r;
}

TEST(EscaleraH, UnErrorDejaLoQueHabia) {
    const auto codigoDe = [](const DatosEscaleraH& e, ResultadosEscaleraH& r, const DatosGenerales& g = {}) {
        CalcularEscaleraH(e, g, r);
        return r.Error ? r.Error->Codigo() : 0;
    };
    ResultadosEscaleraH r = Calculada(Modelo());
    DatosEscaleraH e = Modelo();
    e.R = 0;
    EXPECT_EQ(codigoDe(e, r), 11);
    EXPECT_EQ(r.NEst, 27U);  // nothing was dimensioned anew

    e = Modelo();
    e.Inter = 0;
    EXPECT_EQ(codigoDe(e, r), 11);
    e.Inter = 5;
    e.Angulo = -100;
    EXPECT_EQ(codigoDe(e, r), 9);
    EXPECT_EQ(r.NEst, 0U);
    e = Modelo();
    e.R = 2.5e6;
    EXPECT_EQ(codigoDe(e, r), 6);  // a reaction past 32 bits
    EXPECT_NE(r.TramoInferior[27].QX, 0);
    EXPECT_EQ(r.TramoInferior[27].ASMin, 0);
    e = Modelo();
    e.W = 2000000;  // the stirrups of the support come to a spacing of 0
    EXPECT_EQ(codigoDe(e, r), 11);
    EXPECT_GT(r.TramoInferior[27].AsY, 0);
    EXPECT_EQ(r.TramoInferior[1].AsT, 0);
    DatosGenerales g;
    g.FiMomento = 0;
    EXPECT_EQ(codigoDe(Modelo(), r, g), 11);
    EXPECT_NE(r.TramoSuperior[1].TU, 0);
    EXPECT_EQ(r.TramoSuperior[1].ASMin, 0);
    EXPECT_EQ(codigoDe(Modelo(), r), 0);
}

/// However the interval and the development come out of a damaged file, no array is read past its end.
TEST(EscaleraH, CuantasEstaciones) {
    struct Caso {
        double Angulo;
        std::int16_t Inter;
        std::size_t NEst, Registros;
        int Codigo;
    };
    for (const Caso& caso : {Caso{260, 5, 27, 29, 0},   Caso{245, 9, 14, 17, 0},
                             Caso{1, 1, 1, 3, 0},       Caso{3, 2, 2, 4, 0},
                             Caso{245, 1, 123, 125, 0}, Caso{247, 1, 125, 127, 0},
                             Caso{260, 7, 19, 22, 0},   Caso{260, 32767, 1, 3, 0},
                             Caso{260, -100, 0, 2, 0},  Caso{260, -32768, 0, 3, 0},
                             Caso{-10, 5, 0, 2, 0},     Caso{-15, 5, 0, 2, 0},
                             Caso{260, -5, 0, 0, 9},    Caso{-100, 5, 0, 0, 9},
                             Caso{260, 0, 0, 0, 11},    Caso{65530, 1, 32766, 32768, 0},
                             Caso{65534, 1, 0, 0, 6},   Caso{1e6, 5, 0, 0, 6},
                             Caso{1e306, 5, 0, 0, 6},   Caso{HUGE_VAL, 5, 0, 0, 5}}) {
        DatosEscaleraH e = Modelo();
        e.Angulo = caso.Angulo;
        e.Inter = caso.Inter;
        e.W = 0;
        ResultadosEscaleraH r;
        CalcularEscaleraH(e, {}, r);
        EXPECT_EQ(r.Error ? r.Error->Codigo() : 0, caso.Codigo) << caso.Angulo << " " << caso.Inter;
        EXPECT_EQ(r.NEst, caso.NEst) << caso.Angulo << " " << caso.Inter;
        ASSERT_EQ(r.TramoSuperior.size(), caso.Registros) << caso.Angulo << " " << caso.Inter;
        ASSERT_EQ(r.TramoInferior.size(), caso.Registros);
        if (r.TramoInferior.empty()) continue;
        EXPECT_EQ(r.TramoInferior.at(r.NEst + 1).MT, 0);  // the empty record
        EXPECT_EQ(r.TramoSuperior.at(1).SEP > 0, r.NEst > 0);
    }
    EXPECT_NEAR(EmpujeEstatico(Modelo(), Calculada(Modelo())), 7400.93, 5e-3);  // beside the prescribed 10639
}

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
            const int grados = static_cast<int>(e[0]);
            const auto i = static_cast<std::size_t>((grados + (superior ? 122 : 0)) / d.Inter + 1);
            const EstacionEscaleraH& p = tramo[i];
            SCOPED_TRACE(grados);
            EXPECT_EQ(superior ? lugares.GradosSuperior(i) : lugares.GradosInferior(i), grados);
            EXPECT_EQ(p.SEP, e[1]);
            for (std::size_t k = 2; k < e.size(); ++k)
                EXPECT_NEAR(p.*ColumnasDeHelice[k - 2], e[k], 1e-5 + 1e-9 * std::fabs(e[k])) << k;
            EXPECT_EQ(p.MS1, p.MX < 0 ? p.MX : 0);
            EXPECT_EQ(p.MI1, p.MX < 0 ? 0 : p.MX);
            EXPECT_NEAR(p.ASMin, 90 * 0.002 * 27, 1e-9);
        }
    }
}

Avisos AvisosCon(const DatosEscaleraH& d, const DatosGenerales& g = {}) {
    ResultadosEscaleraH r;
    CalcularEscaleraH(d, g, r);
    return AvisosDe(d, g, r);
}

std::size_t Cuantos(const Avisos& avisos, Gravedad peso, const std::string& linea) {
    return static_cast<std::size_t>(std::count_if(avisos.begin(), avisos.end(), [&](const Aviso& aviso) {
        return aviso.Peso == peso && EnUnaLinea(aviso).starts_with(linea);
    }));
}

TEST(AvisosDeHelice, ElIntervaloQueNoLlega) {
    DatosEscaleraH d = Modelo();
    EXPECT_EQ(Cuantos(AvisosCon(d), Gravedad::Advertencia, ""), 0U);
    EXPECT_EQ(Cuantos(AvisosCon(d), Gravedad::Nota, "El apoyo está"), 0U);
    d.Inter = 7;
    d.Angulo = 245;
    Avisos avisos = AvisosCon(d);
    const std::string centro = "Tramo superior: El intervalo no da una estación en el centro.";
    EXPECT_EQ(Cuantos(avisos, Gravedad::Advertencia, centro), 1U);
    EXPECT_EQ(Cuantos(avisos, Gravedad::Advertencia,
                      "Tramo inferior: El intervalo no da una estación en el apoyo."),
              1U);
    EXPECT_EQ(Cuantos(avisos, Gravedad::Nota,
                      "El apoyo está a 122,50° del centro y las estaciones llegan, como mucho, a 122°."),
              1U);
    d.Inter = -100;
    avisos = AvisosCon(d);
    ASSERT_EQ(avisos.size(), 1U);
    EXPECT_EQ(EnUnaLinea(avisos[0]), "El intervalo no da ninguna estación.");
    EXPECT_EQ(avisos[0].Peso, Gravedad::Falla);
}

/// The default helix needs compression steel near its supports, and stirrups that stand.
TEST(AvisosDeHelice, Secciones) {
    DatosEscaleraH d = Modelo();
    d.W = 3000;
    Avisos avisos = AvisosCon(d);
    EXPECT_EQ(Cuantos(avisos, Gravedad::Nota, "Tramo superior, θ = -130° a "), 1U);
    EXPECT_EQ(Cuantos(avisos, Gravedad::Nota, "Tramo inferior, θ = "), 2U);
    d.W = 10000;
    avisos = AvisosCon(d);
    EXPECT_EQ(Cuantos(avisos, Gravedad::Advertencia, "Tramo inferior, θ = "), 1U);
    d.T = 0.06;  // 3.5 cm to the steel: a neutral axis above the cover
    d.W = 300;
    avisos = AvisosCon(d);
    EXPECT_EQ(Cuantos(avisos, Gravedad::Falla, "Tramo superior, θ = -130° a -125°: El acero a compresión"),
              1U);
    d.R = 0;
    avisos = AvisosCon(d);
    ASSERT_EQ(avisos.size(), 1U);
    EXPECT_TRUE(avisos[0].Texto.starts_with("El cálculo terminó con el error 11"));
    EXPECT_TRUE(AvisosDe(d, {}, {}).empty());
}

}  // namespace
}  // namespace trabex::prueba
