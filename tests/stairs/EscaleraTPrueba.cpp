#include <algorithm>
#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "stairs/CalcularEscaleraT.h"
#include "stairs/EstaticaEscaleraT.h"

namespace trabex {

using namespace escaleras;
namespace {

/// A stair of residences: two flights of 2.40 m by 1.20 m that rise 3 m.
DatosEscaleraT Modelo() {
    return {"E-1", "", 2.4, 1.2, 3, 0.15, 0.15, 1200, 1000, 600};
}

ResultadosEscaleraT Calculada(const DatosEscaleraT& escalera, const DatosGenerales& generales = {}) {
    ResultadosEscaleraT r;
    CalcularEscaleraT(escalera, generales, r);
    EXPECT_FALSE(r.Error);
    return r;
}

DatosEscaleraT AlAzar(std::mt19937& azar) {
    const auto entre = [&](double a, double b) { return std::uniform_real_distribution<>(a, b)(azar); };
    const auto carga = [&] { return std::uniform_int_distribution<>(0, 3000)(azar); };
    return {"",      "",      entre(1, 5), entre(0.8, 2.5), entre(1.5, 5), entre(0.1, 0.35), entre(0.1, 0.35),
            carga(), carga(), carga()};
}

TEST(EscaleraT, CasoTrabajado) {
    const ResultadosEscaleraT r = Calculada(Modelo());
    const EstaticaEscaleraT& e = r.Estatica;
    EXPECT_NEAR(e.Alfa, 0.558599, 5e-7);
    EXPECT_NEAR(e.Denominador, 11.81406, 5e-6);
    EXPECT_NEAR(e.CoefMomento, 0.135084, 5e-7);
    EXPECT_NEAR(e.CoefLateral, 0.053834, 5e-7);
    EXPECT_NEAR(e.CoefDescanso, -0.044013, 5e-7);
    EXPECT_NEAR(e.CoefLateralDescanso, 0.098696, 5e-7);
    EXPECT_NEAR(e.MomentoApoyoTotal, -680.19, 5e-3);
    EXPECT_NEAR(e.MomentoApoyoPermanente, -781.59, 5e-3);
    EXPECT_NEAR(e.MomentoHorizontal, -940.59, 5e-3);
    EXPECT_NEAR(e.EmpujeFlexion, 4250.54, 5e-3);
    EXPECT_NEAR(r.ReaccionVertical, 4080, 5e-3);
    EXPECT_NEAR(r.ReaccionHorizontal, 5530.01, 5e-3);
}

/// Along the flight the forces balance the load between two stations, and the landing joins it.
TEST(EscaleraT, Equilibrio) {
    std::mt19937 azar(7);
    for (int vez = 0; vez < 100; ++vez) {
        const DatosEscaleraT d = AlAzar(azar);
        const ResultadosEscaleraT r = Calculada(d);
        const double seno = std::sin(r.Estatica.Alfa);
        const double coseno = std::cos(r.Estatica.Alfa);
        const double escala = 1e-9 * (d.L + d.B) * (d.L + d.B) * (d.WT + d.Wd + d.WpD + 1) * (1 + d.L / d.H);
        ASSERT_EQ(r.TramoT.size(), 11U);
        for (std::size_t i = 0; i <= 10; ++i) {
            const EscaleraTramoPunto& p = r.TramoT[i];
            const double X = d.L * static_cast<double>(i) / 10;
            // Resultants on the vertical and on the horizontal: the load so far, and a constant thrust.
            EXPECT_NEAR(p.Axial * seno + p.CorteTotal * coseno, d.WT * X + d.Wd * d.B, escala);
            EXPECT_NEAR(p.Axial * coseno - p.CorteTotal * seno, r.Estatica.EmpujeFlexion, escala);
            // The two moments about the flight's own axes are one horizontal and one vertical moment.
            EXPECT_NEAR(p.Torsor * coseno - p.MomentoY * seno, r.Estatica.MomentoHorizontal, escala);
            EXPECT_NEAR(p.Torsor * seno + p.MomentoY * coseno, r.Estatica.EmpujeFlexion * d.B / 2, escala);
            EXPECT_GE(p.EnvolventePositiva, std::max({0.0, p.MomentoTotal, p.MomentoPermanente}));
            EXPECT_LE(p.EnvolventeNegativa, std::min({0.0, p.MomentoTotal, p.MomentoPermanente}));
            if (i == 0) continue;
            // dM/dx = −V along the slope; the shear is linear, so that the trapezoid is exact.
            const EscaleraTramoPunto& q = r.TramoT[i - 1];
            const double paso = d.L / 10 / coseno / 2;
            EXPECT_NEAR(p.MomentoTotal - q.MomentoTotal, -paso * (p.CorteTotal + q.CorteTotal), escala);
            EXPECT_NEAR(p.MomentoPermanente - q.MomentoPermanente,
                        -paso * (p.CortePermanente + q.CortePermanente), escala);
        }
        EXPECT_NEAR(r.TramoT[10].MomentoTotal, r.Estatica.MomentoApoyoTotal, escala);
        EXPECT_NEAR(r.TramoT[10].MomentoPermanente, r.Estatica.MomentoApoyoPermanente, escala);
        EXPECT_NEAR(r.TramoT[0].MomentoTotal, -d.B * d.B * d.Wd / 2, escala);
        EXPECT_NEAR(r.TramoT[0].MomentoPermanente, -d.B * d.B * d.WpD / 2, escala);
        EXPECT_NEAR(r.ReaccionVertical, d.WT * d.L + d.Wd * d.B, escala);
        EXPECT_NEAR(r.DescansoT[7].MomentoTotal, r.TramoT[0].MomentoTotal, escala);
        for (std::size_t j = 1; j <= 7; ++j) {
            const EscaleraDescansoPunto& p = r.DescansoT[j];
            EXPECT_NEAR(std::hypot(p.CorteY, p.Axial), std::fabs(r.Estatica.EmpujeFlexion), escala);
            EXPECT_NEAR(p.MomentoY, p.Axial * d.B / 2, escala);
        }
    }
}

TEST(EscaleraT, SinCargaOConLaMismaCarga) {
    DatosEscaleraT d = Modelo();
    d.WpD = d.Wd;
    for (const EscaleraTramoPunto& p : Calculada(d).TramoT) {
        EXPECT_EQ(p.MomentoPermanente, p.MomentoTotal);
        EXPECT_EQ(p.CortePermanente, p.CorteTotal);
    }
    d.WT = d.Wd = d.WpD = 0;
    const ResultadosEscaleraT r = Calculada(d);
    for (const EscaleraTramoPunto& p : r.TramoT) {
        EXPECT_EQ(std::fabs(p.MomentoTotal) + std::fabs(p.Axial) + std::fabs(p.Torsor), 0);
        EXPECT_EQ(p.EnvolventePositiva - p.EnvolventeNegativa + p.AsSuperior + p.AsInferior + p.AsY, 0);
        EXPECT_EQ(p.AreaEstribo, 0);  // no station needed torsion steel
        EXPECT_GT(p.AsTorsion, 0);
    }
    EXPECT_EQ(r.ReaccionVertical, 0);
}

TEST(EscaleraT, SinGeometriaQuedaLoAnterior) {
    const ResultadosEscaleraT antes = Calculada(Modelo());
    for (double DatosEscaleraT::*campo : {&DatosEscaleraT::L, &DatosEscaleraT::B, &DatosEscaleraT::H}) {
        DatosEscaleraT d = Modelo();
        d.*campo = 0;
        ResultadosEscaleraT r = antes;
        CalcularEscaleraT(d, {}, r);
        EXPECT_EQ(r.TramoT[5].MomentoTotal, antes.TramoT[5].MomentoTotal);
        EXPECT_FALSE(r.Error);
    }
    ResultadosEscaleraT vacia;
    CalcularEscaleraT({}, {}, vacia);
    EXPECT_TRUE(vacia.TramoT.empty() && vacia.DescansoT.empty());
}

/// A run-time error leaves what stood, the forces of the first station, and nothing of the stair before.
TEST(EscaleraT, UnErrorDejaLoQueHabia) {
    ResultadosEscaleraT r = Calculada(Modelo());
    const double momento = r.TramoT[0].MomentoTotal;
    DatosGenerales g;
    g.FiMomento = 0;
    DatosEscaleraT d = Modelo();
    d.WT = 2000;
    CalcularEscaleraT(d, g, r);
    ASSERT_TRUE(r.Error);
    EXPECT_EQ(r.Error->Codigo(), 11);
    EXPECT_EQ(r.TramoT[0].MomentoTotal, momento);  // the landing's load alone
    EXPECT_EQ(r.TramoT[0].AsSuperior, 0);
    EXPECT_EQ(r.TramoT[1].MomentoTotal, 0);
    EXPECT_EQ(r.DescansoT.at(1).MomentoTotal, 0);

    d.L = 1e-200;  // the coefficients can't be formed
    r = Calculada(Modelo());
    CalcularEscaleraT(d, {}, r);
    EXPECT_TRUE(r.Error);
    EXPECT_EQ(r.TramoT.at(0).MomentoTotal, 0);
    CalcularEscaleraT(Modelo(), {}, r);
    EXPECT_FALSE(r.Error);
}

/// The code is that of the first fault, and what was stored before it stays, in its own station too.
TEST(EscaleraT, ElErrorEsElDeLaPrimeraFalta) {
    struct Caso {
        const char* Que;
        double HT, FiMomento;
        std::int16_t FC, FY;
        int Codigo;
    };
    // A flight as thick as its cover: 0/0 in As1, and only then c = 0 divides. Steel of no strength, past the
    // limit moment: As1 divides by it first. Concrete of none: the same 0/0.
    for (const Caso& caso :
         {Caso{"d = 0", 0.025, 0.9, 250, 4200, 5}, Caso{"φ = 0", 0.15, 0, 250, 4200, 11},
          Caso{"Fy = 0", 0.05, 0.9, 250, 0, 11}, Caso{"F'c < 0", 0.15, 0.9, -250, 4200, 5}}) {
        DatosEscaleraT d = Modelo();
        d.HT = caso.HT;
        DatosGenerales g;
        g.FiMomento = caso.FiMomento;
        g.FC = caso.FC;
        g.FY = caso.FY;
        ResultadosEscaleraT r;
        CalcularEscaleraT(d, g, r);
        ASSERT_TRUE(r.Error) << caso.Que;
        EXPECT_EQ(r.Error->Codigo(), caso.Codigo) << caso.Que;
        EXPECT_NEAR(r.TramoT[0].Torsor, 554.05, 5e-3) << caso.Que;
        EXPECT_NEAR(r.TramoT[0].EnvolventeNegativa, -720, 5e-3) << caso.Que;
    }
    // A landing as thick as nothing: its steel stands; that of its lateral moment is 0/0, and the stress of
    // its shear, which would divide by 0, is not reached.
    DatosEscaleraT d = Modelo();
    d.Hd = 0;
    ResultadosEscaleraT r;
    CalcularEscaleraT(d, {}, r);
    ASSERT_TRUE(r.Error);
    EXPECT_EQ(r.Error->Codigo(), 5);
    EXPECT_NE(r.DescansoT[1].AsSuperior, 0);
    EXPECT_EQ(r.DescansoT[1].TensionCorte, 0);
    EXPECT_EQ(r.DescansoT[2].Torsor, 0);
    EXPECT_EQ(r.TramoT[0].SeparacionEstribo, 30);
    EXPECT_EQ(r.ReaccionVertical, 0);
}

TEST(EscaleraT, LugarDeLasEstaciones) {
    const DatosEscaleraT d = Modelo();
    EXPECT_EQ(XDeEstacion(d, 0), 0);
    EXPECT_NEAR(XDeEstacion(d, 3), 0.72, 1e-15);
    EXPECT_NEAR(XDeEstacion(d, 10), 2.4, 1e-14);
    EXPECT_EQ(GradosDeDescanso(1), 0);
    EXPECT_EQ(GradosDeDescanso(7), 90);
    EXPECT_EQ(EmpujeEstatico({}), 0);
    EXPECT_NEAR(EmpujeEstatico(Calculada(d)), 4250.54, 5e-3);  // beside the prescribed 5530.01
}

}  // namespace
}  // namespace trabex
