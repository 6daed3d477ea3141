#include <algorithm>
#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "helical/CalcularEscaleraH.h"
#include "helical/EstacionesHelice.h"
#include "support/HelicePorTrabajo.h"

namespace trabex {

using namespace helices;
namespace {

using prueba::Accion;
using prueba::AccionDe;
using prueba::EjeHelice;
using prueba::Vector3;

DatosEscaleraH Modelo() {
    return EscaleraHNuevaDe("H-1", "");
}

ResultadosEscaleraH Calculada(const DatosEscaleraH& escalera, const DatosGenerales& generales = {}) {
    ResultadosEscaleraH r;
    CalcularEscaleraH(escalera, generales, r);
    EXPECT_FALSE(r.Error);
    return r;
}

DatosEscaleraH AlAzar(std::mt19937& azar) {
    const auto entre = [&](double a, double b) { return std::uniform_real_distribution<>(a, b)(azar); };
    DatosEscaleraH e{"", "", entre(0.8, 2), entre(0.1, 0.4), entre(1, 5), entre(1.2, 4), 0, 1500, 5};
    e.Angulo = 10.0 * std::uniform_int_distribution<>(6, 36)(azar);
    return e;
}

double Grados(double grados) {
    return grados * std::acos(-1) / 180;
}

void Comparar(const Accion& a, const Accion& b, double tolerancia, double R) {
    for (std::size_t k = 0; k < 3; ++k) {
        EXPECT_NEAR(a.F[k], b.F[k], tolerancia);
        EXPECT_NEAR(a.M[k], b.M[k], tolerancia * R);
    }
}

TEST(EscaleraH, CasoTrabajado) {
    const ResultadosEscaleraH r = Calculada(Modelo());
    EXPECT_NEAR(r.L, 11.34464, 5e-6);
    EXPECT_NEAR(r.Alfa, 14.81235, 5e-6);
    EXPECT_NEAR(r.X, -2.576327, 5e-7);
    EXPECT_NEAR(r.Y, 0.917739, 5e-7);
    EXPECT_EQ(r.FV, 8508);
    EXPECT_EQ(r.Fh, 10639);
    ASSERT_EQ(r.NEst, 27U);
    const EstacionEscaleraH& apoyo = r.TramoInferior[27];
    EXPECT_NEAR(apoyo.N, 9330.21, 5e-3);
    EXPECT_NEAR(apoyo.QX, 6333.65, 5e-3);
    EXPECT_NEAR(apoyo.QY, 6210.12, 5e-3);
    EXPECT_NEAR(apoyo.MT, 456.64, 5e-3);
    EXPECT_NEAR(apoyo.MX, -4085.27, 5e-3);
    EXPECT_NEAR(apoyo.MY, -19259.08, 5e-3);
    EXPECT_NEAR(r.TramoInferior[1].QY, -9661.23, 5e-3);
    EXPECT_NEAR(r.TramoInferior[1].MX, -1052.45, 5e-3);
}

/// Between any two stations the forces balance the load, integrated along its own arc.
TEST(EscaleraH, EquilibrioEntreEstaciones) {
    std::mt19937 azar(11);
    for (int vez = 0; vez < 40; ++vez) {
        const DatosEscaleraH e = AlAzar(azar);
        const ResultadosEscaleraH r = Calculada(e);
        const EjeHelice eje(e);
        const auto estacion = [&](int k) {  // −NEst+1 … NEst−1, from the upper support down
            const auto n = static_cast<int>(r.NEst);
            return AccionDe(k < 0 ? r.TramoSuperior[static_cast<std::size_t>(n + k)]
                                  : r.TramoInferior[static_cast<std::size_t>(k + 1)],
                            eje, Grados(k * e.Inter));
        };
        const auto n = static_cast<int>(r.NEst);
        for (const auto& [de, a] : {std::pair{-n + 1, n - 1}, {-n + 1, -1}, {-2, 3}, {0, n - 1}}) {
            const double t1 = Grados(de * e.Inter);
            const double t2 = Grados(a * e.Inter);
            const Vector3 punto = eje.Posicion(t2);
            const Accion arriba = estacion(de);
            Accion suma{arriba.F, arriba.M + prueba::Cruz(eje.Posicion(t1) - punto, arriba.F)};
            constexpr int trozos = 400;  // Simpson
            for (int i = 0; i <= trozos; ++i) {
                const double t = t1 + (t2 - t1) * i / trozos;
                const double peso = (i == 0 || i == trozos ? 1 : (i % 2 == 1 ? 4 : 2)) / 3.0;
                const Vector3 dF{0, 0, -e.W * e.R * (t2 - t1) / trozos * peso};
                suma.F = suma.F + dF;
                suma.M = suma.M + prueba::Cruz(eje.Carga(t) - punto, dF);
            }
            Comparar(suma, estacion(a), 1e-6 * e.W * e.R, e.R);
        }
        EXPECT_NEAR(r.FV, e.W * r.L / 2, 0.5001);
    }
}

/// Least work with six unknowns, integrated in space, which shares no formula with the closed form.
TEST(EscaleraH, LasAccionesSonLasDelTrabajoMinimo) {
    std::mt19937 azar(17);
    for (int vez = 0; vez < 30; ++vez) {
        const DatosEscaleraH e = AlAzar(azar);
        ResultadosEscaleraH r;
        CalcularEscaleraH(e, {}, r);  // some are too slender for stirrups
        const EjeHelice eje(e);
        const prueba::HelicePorTrabajo trabajo(e);
        const auto n = static_cast<int>(r.NEst);
        for (int i = 1; i <= n; ++i) {
            const auto k = static_cast<std::size_t>(i);
            const double t = Grados((i - 1) * e.Inter);
            const double tolerancia = 1e-8 * e.W * e.R;
            Comparar(AccionDe(r.TramoInferior[k], eje, t), trabajo.En(t), tolerancia, e.R);
            Comparar(AccionDe(r.TramoSuperior[static_cast<std::size_t>(n - i + 1)], eje, -t), trabajo.En(-t),
                     tolerancia, e.R);
        }
        EXPECT_NEAR(EmpujeEstatico(e, r),
                    trabajo.En(eje.fi).F[1] * std::cos(eje.fi) - trabajo.En(eje.fi).F[0] * std::sin(eje.fi),
                    1e-8 * e.W * e.R);
    }
}

TEST(EscaleraH, SimetriaYContinuidad) {
    DatosEscaleraH e = Modelo();
    const ResultadosEscaleraH r = Calculada(e);
    ASSERT_EQ(r.TramoSuperior.size(), 29U);
    for (std::size_t i = 1; i <= r.NEst; ++i) {
        const EstacionEscaleraH& s = r.TramoSuperior[r.NEst + 1 - i];
        const EstacionEscaleraH& q = r.TramoInferior[i];
        EXPECT_EQ(s.N, -q.N);
        EXPECT_EQ(s.QX, -q.QX);
        EXPECT_EQ(s.MT, -q.MT);
        EXPECT_EQ(s.MY, -q.MY);
        EXPECT_EQ(s.QY, q.QY);
        EXPECT_EQ(s.MX, q.MX);
        EXPECT_EQ(q.MS1 + q.MI1, q.MX);
        EXPECT_TRUE(q.MS1 <= 0 && q.MI1 >= 0);
        EXPECT_EQ(s.ASXS, q.ASXS);
        EXPECT_EQ(s.AsY, q.AsY);  // the tension steel, whatever the sign
    }
    e.Inter = 1;
    const ResultadosEscaleraH fina = Calculada(e);
    ASSERT_EQ(fina.NEst, 131U);
    for (std::size_t i = 1; i <= r.NEst; ++i) {
        EXPECT_EQ(fina.TramoInferior[5 * i - 4].MX, r.TramoInferior[i].MX);
        EXPECT_EQ(fina.TramoSuperior[5 * i - 4].MY, r.TramoSuperior[i].MY);
        EXPECT_NEAR(fina.TramoInferior[5 * i - 4].TU, r.TramoInferior[i].TU, 40);
    }
    EXPECT_EQ(fina.FV, r.FV);
}

TEST(EscaleraH, ViguetaCurvaHorizontal) {
    DatosEscaleraH e = Modelo();
    e.H = 0;
    const ResultadosEscaleraH r = Calculada(e);
    EXPECT_EQ(r.Alfa, 0);
    EXPECT_EQ(r.X, 0);
    for (std::size_t i = 1; i <= r.NEst; ++i) {
        const EstacionEscaleraH& q = r.TramoInferior[i];
        EXPECT_EQ(std::fabs(q.N) + std::fabs(q.QY) + std::fabs(q.MY), 0);
    }
}

TEST(EscaleraH, EstacionesQueNoLlegan) {
    DatosEscaleraH e = Modelo();
    e.Inter = 7;
    const ResultadosEscaleraH r = Calculada(e);
    EXPECT_EQ(r.NEst, 19U);
    EXPECT_EQ(r.TramoSuperior.size(), 22U);
    const auto corte = [&](double grados) {  // QX tells the angle
        DatosEscaleraH una = e;
        una.Inter = 1;
        const ResultadosEscaleraH todas = Calculada(una);
        return todas.TramoInferior[static_cast<std::size_t>(grados) + 1].QX;
    };
    EXPECT_EQ(r.TramoSuperior[1].QX, -corte(130));
    EXPECT_EQ(r.TramoSuperior[19].QX, -corte(4));
    EXPECT_EQ(r.TramoInferior[19].QX, corte(126));
    EXPECT_EQ(r.TramoInferior[20].QX, 0);
    for (std::size_t j = 1; j <= 19; ++j) EXPECT_EQ(r.TramoInferior[j].LON, r.TramoSuperior[20 - j].LON);

    for (const auto& [angulo, Rp] : {std::pair{245.0, 122U}, {247.0, 124U}, {360.0, 180U}, {3.0, 2U}}) {
        e = Modelo();
        e.Angulo = angulo;
        e.Inter = 1;
        const ResultadosEscaleraH media = Calculada(e);
        EXPECT_EQ(media.NEst, Rp + 1) << angulo;
        EXPECT_GT(media.TramoSuperior.size(), media.NEst + 1);
        EXPECT_NEAR(media.FV, e.W * media.L / 2, 0.5001);  // at the support's own angle
    }
}

/// The area of the torsion diagram, from the support down in one half and from the centre down in the other.
TEST(EscaleraH, AreaDeTorsion) {
    const DatosEscaleraH e = Modelo();
    const ResultadosEscaleraH r = Calculada(e);
    const double dS = e.R * Grados(e.Inter) / std::cos(Grados(r.Alfa));
    for (std::size_t i = 1; i <= r.NEst; ++i) {
        double falta = 0;
        double lleva = 0;
        for (std::size_t j = i; j <= r.NEst; ++j)
            falta += (r.TramoSuperior[j].MT + r.TramoSuperior[j + 1].MT) / 2 * dS;
        for (std::size_t j = 1; j < i; ++j)
            lleva += (r.TramoInferior[j].MT + r.TramoInferior[j + 1].MT) / 2 * dS;
        EXPECT_NEAR(r.TramoSuperior[i].TU, falta, 1e-6);
        EXPECT_NEAR(r.TramoInferior[i].TU, lleva, 1e-6);
    }
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
    for (const Caso& caso :
         {Caso{260, 5, 27, 29, 0}, Caso{245, 9, 14, 17, 0}, Caso{1, 1, 1, 3, 0}, Caso{3, 2, 2, 4, 0},
          Caso{260, 32767, 1, 3, 0}, Caso{260, -100, 0, 2, 0}, Caso{260, -32768, 0, 3, 0},
          Caso{-10, 5, 0, 2, 0}, Caso{-15, 5, 0, 2, 0}, Caso{260, -5, 0, 0, 9}, Caso{-100, 5, 0, 0, 9},
          Caso{260, 0, 0, 0, 11}, Caso{65530, 1, 32766, 32768, 0}, Caso{65534, 1, 0, 0, 6},
          Caso{1e6, 5, 0, 0, 6}, Caso{1e306, 5, 0, 0, 6}, Caso{HUGE_VAL, 5, 0, 0, 5}}) {
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
}

/// The interval may miss the centre in one half and the support in the other.
TEST(EscaleraH, LugarDeLasEstaciones) {
    DatosEscaleraH e = Modelo();
    EXPECT_FALSE(EstacionesDe(e).QuedanCortas());
    e.Inter = 7;
    const EstacionesHelice estaciones = EstacionesDe(e);
    EXPECT_TRUE(estaciones.QuedanCortas());
    EXPECT_EQ(estaciones.GradosSuperior(1), -130);
    EXPECT_EQ(estaciones.GradosSuperior(19), -4);
    EXPECT_EQ(estaciones.GradosInferior(1), 0);
    EXPECT_EQ(estaciones.GradosInferior(19), 126);
    EXPECT_NEAR(EmpujeEstatico(Modelo(), Calculada(Modelo())), 7400.93, 5e-3);  // beside the prescribed 10639
}

}  // namespace
}  // namespace trabex
