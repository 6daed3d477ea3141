#include <algorithm>
#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "stairs/CalcularEscaleraT.h"
#include "stairs/DisenoEscaleraT.h"

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

    const EscaleraTramoPunto& junta = r.TramoT[0];
    const EscaleraTramoPunto& medio = r.TramoT[5];
    const EscaleraTramoPunto& apoyo = r.TramoT[10];
    EXPECT_NEAR(junta.MomentoTotal, -720, 5e-3);
    EXPECT_NEAR(junta.MomentoPermanente, -432, 5e-3);
    EXPECT_NEAR(junta.CorteTotal, -1235.18, 5e-3);
    EXPECT_NEAR(junta.Axial, 4240.45, 5e-3);
    EXPECT_NEAR(junta.MomentoY, 2661.18, 5e-3);
    EXPECT_NEAR(junta.Torsor, 554.05, 5e-3);
    EXPECT_NEAR(medio.MomentoTotal, 163.91, 5e-3);
    EXPECT_NEAR(medio.MomentoPermanente, 257.20, 5e-3);
    EXPECT_NEAR(medio.Axial, 5003.65, 5e-3);
    EXPECT_NEAR(apoyo.MomentoTotal, -680.19, 5e-3);
    EXPECT_NEAR(apoyo.CortePermanente, 1344.64, 5e-3);
    EXPECT_NEAR(apoyo.Axial, 5766.85, 5e-3);
    EXPECT_NEAR(r.ReaccionVertical, 4080, 5e-3);
    EXPECT_NEAR(r.ReaccionHorizontal, 5530.01, 5e-3);

    const EscaleraDescansoPunto& cero = r.DescansoT[1];
    const EscaleraDescansoPunto& recto = r.DescansoT[7];
    EXPECT_NEAR(cero.MomentoTotal, -940.59, 5e-3);
    EXPECT_NEAR(cero.CorteY, -4250.54, 5e-3);
    EXPECT_EQ(cero.Axial, 0);
    EXPECT_NEAR(recto.MomentoTotal, -720, 5e-3);
    EXPECT_NEAR(recto.CorteY, 0, 5e-3);
    EXPECT_NEAR(recto.Axial, 4250.54, 5e-3);
    EXPECT_NEAR(recto.MomentoY, 2550.32, 5e-3);
    EXPECT_NEAR(recto.Torsor, -940.59, 5e-3);

    EXPECT_NEAR(junta.AsSuperior, 2.400, 5e-4);
    EXPECT_EQ(junta.AsInferior, 0);
    EXPECT_NEAR(medio.AsInferior, 0.848, 5e-4);
    EXPECT_EQ(medio.AsSuperior, 0);
    EXPECT_NEAR(apoyo.AsSuperior, 2.609, 5e-4);
    for (const EscaleraTramoPunto* punto : {&junta, &medio, &apoyo}) {
        EXPECT_NEAR(punto->AsY, 0.934, 5e-4);
        EXPECT_EQ(punto->SeparacionEstribo, 30);
    }
    EXPECT_EQ(junta.AreaEstribo, 0.71);
    EXPECT_NEAR(cero.AsSuperior, 3.151, 5e-4);
    EXPECT_EQ(cero.AsY, 0);
    EXPECT_NEAR(cero.TensionCorte, 4.398, 5e-4);
    EXPECT_NEAR(cero.TensionAdmisible, 8.380, 5e-4);
    EXPECT_EQ(cero.FallaCorte, "");
    EXPECT_NEAR(recto.AsSuperior, 2.400, 5e-4);
    EXPECT_NEAR(recto.AsY, 0.895, 5e-4);
    EXPECT_NEAR(recto.TensionCorte, 0, 5e-4);
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

/// The flight's faces keep the greater of two demands, and the landing signs its lateral moment.
TEST(EscaleraT, AcerosDeCadaCara) {
    const DatosGenerales g;
    DatosEscaleraT d = Modelo();
    EscaleraTramoPunto p;
    p.EnvolventeNegativa = -9000;  // past the limit moment: steel on both faces
    p.EnvolventePositiva = 500;
    DisenarFlexionTramo(d, g, {}, p);
    const AceroCaras negativo = CalculeRefuerzoEscalera(-9000, d.B, d.HT, g);
    const AceroCaras positivo = CalculeRefuerzoEscalera(500, d.B, d.HT, g);
    ASSERT_GT(negativo.AsInf, positivo.AsInf);
    EXPECT_EQ(p.AsSuperior, negativo.AsSup);
    EXPECT_EQ(p.AsInferior, negativo.AsInf);
    p.EnvolventePositiva = 20000;
    DisenarFlexionTramo(d, g, {}, p);
    EXPECT_EQ(p.AsInferior, CalculeRefuerzoEscalera(20000, d.B, d.HT, g).AsInf);

    EscaleraDescansoPunto q;
    q.MomentoY = -3000;
    DisenarDescanso(d, g, {}, q);
    EXPECT_EQ(q.AsY, 0);
    q.MomentoY = 3000;
    DisenarDescanso(d, g, {}, q);
    EXPECT_GT(q.AsY, 0);
    q.CorteY = -1e5;
    DisenarDescanso(d, g, {}, q);
    EXPECT_EQ(q.FallaCorte, "Falla por Corte");
    EXPECT_EQ(CalculeRefuerzoEscalera(0, d.B, d.HT, g).AsSup, 0);
}

/// A flight of 1.20 m by 0.15 m: x1 = 115 cm, y1 = 10 cm, a sum of 27000 cm³.
TEST(EscaleraT, Estribos) {
    const DatosGenerales g;
    const DatosEscaleraT d = Modelo();
    EstaticaEscaleraT e;
    double area = 0.5;
    // Torsion that the concrete takes: the widest spacing, the bar as it came, steel of the smaller bar.
    EstribosTramo estribos = CalculeEstribos(0, 100, e, 0, d, g, area);
    EXPECT_EQ(estribos.Separacion, 30);
    EXPECT_EQ(area, 0.5);
    EXPECT_NEAR(estribos.AsLongitudinal, 125 * 1.42 / 30 / 2, 1e-12);
    // Where concrete does not: s = at·x1·y1·Fy·A/(Ts·100), with the product of torsion and length less Tc.
    const double Tlim = std::sqrt(250.0) * 0.13 * 27000 / 100;
    const auto torsor = [&](double Tn) { return Tn * 0.85 / g.FS / d.L; };
    const auto separacion = [&](double Tn, double A) {
        return 1.5 * 115 * 10 * 4200 * A / ((Tn - Tlim * 0.21 / 0.13) * 100);
    };
    estribos = CalculeEstribos(0, torsor(4000), e, 0, d, g, area);
    EXPECT_NEAR(estribos.Separacion, separacion(4000, 0.71), 1e-9);
    EXPECT_EQ(area, 0.71);
    estribos = CalculeEstribos(0, -torsor(9000), e, 0, d, g, area);
    EXPECT_NEAR(estribos.Separacion, separacion(9000, 1.27), 1e-9);  // under 10 cm with the smaller bar
    EXPECT_EQ(area, 1.27);
    EXPECT_NEAR(estribos.AsLongitudinal, 125 * 1.42 / estribos.Separacion / 2, 1e-9);
    // Shear takes from the concrete's share; the horizontal moment and the distance take from the torsion.
    EXPECT_LT(CalculeEstribos(8000, torsor(4000), e, 0, d, g, area).Separacion, separacion(4000, 0.71));
    area = 0.5;
    e.MomentoHorizontal = -2 * 0.85 * 3900 / (0.6 * 6.28318530717958 / 4);
    EXPECT_EQ(CalculeEstribos(0, torsor(4000), e, 0, d, g, area).Separacion, 30);
    e.MomentoHorizontal = 0;
    EXPECT_EQ(CalculeEstribos(0, torsor(4000), e, d.L, d, g, area).Separacion, 30);
    EXPECT_EQ(area, 0.5);
}

/// Stirrups are found from the support to the landing, and a bar once chosen is carried over.
TEST(EscaleraT, LaBarraSeLlevaDelApoyoAlDescanso) {
    DatosEscaleraT d = Modelo();
    d.WT = 6000;
    d.Wd = 5000;
    const ResultadosEscaleraT r = Calculada(d);
    double barra = 0;
    bool llevada = false;
    double X = 0;
    for (std::size_t i = 11; i-- > 0; X += d.L / 10) {
        const EscaleraTramoPunto& p = r.TramoT[i];
        double area = barra;
        const EstribosTramo s = CalculeEstribos(p.CorteEnvolvente, p.Torsor, r.Estatica, X, d, {}, area);
        EXPECT_EQ(p.SeparacionEstribo, s.Separacion);
        EXPECT_EQ(p.AreaEstribo, area);
        double marca = -1;
        CalculeEstribos(p.CorteEnvolvente, p.Torsor, r.Estatica, X, d, {}, marca);
        llevada = llevada || (marca == -1 && p.AreaEstribo > 0);
        barra = area;
    }
    EXPECT_TRUE(llevada);
    EXPECT_LT(r.TramoT[10].SeparacionEstribo, 30);
}

}  // namespace
}  // namespace trabex
