#include <cmath>

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
    // A flight as thick as its cover: 0/0 in As1, and only then c = 0 divides. Steel of no strength, past the
    // limit moment: As1 divides by it first. Concrete of none: the same 0/0.
    for (const auto& [que, HT, fiMomento, FC, FY, codigo] :
         {std::tuple<const char*, double, double, std::int16_t, std::int16_t, int>{"d = 0", 0.025, 0.9, 250,
                                                                                   4200, 5},
          {"φ = 0", 0.15, 0, 250, 4200, 11},
          {"Fy = 0", 0.05, 0.9, 250, 0, 11},
          {"F'c < 0", 0.15, 0.9, -250, 4200, 5}}) {
        DatosEscaleraT d = Modelo();
        d.HT = HT;
        DatosGenerales g;
        g.FiMomento = fiMomento;
        g.FC = FC;
        g.FY = FY;
        ResultadosEscaleraT r;
        CalcularEscaleraT(d, g, r);
        ASSERT_TRUE(r.Error) << que;
        EXPECT_EQ(r.Error->Codigo(), codigo) << que;
        EXPECT_NEAR(r.TramoT[0].Torsor, 554.05, 5e-3) << que;
        EXPECT_NEAR(r.TramoT[0].EnvolventeNegativa, -720, 5e-3) << que;
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

TEST(EscaleraT, Empuje) {
    EXPECT_EQ(EmpujeEstatico({}), 0);
    EXPECT_NEAR(EmpujeEstatico(Calculada(Modelo())), 4250.54, 5e-3);  // beside the prescribed 5530.01
}

}  // namespace
}  // namespace trabex
