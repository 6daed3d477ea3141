#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "base/RefuerzoEscalera.h"
#include "stairs/Avisos.h"
#include "stairs/CalcularEscaleraT.h"
#include "stairs/DisenoEscaleraT.h"
#include "stairs/EstaticaEscaleraT.h"
#include "stairs/ValoresEscaleraT.h"
#include "support/EscalerasTrabajadas.h"

namespace trabex::prueba {

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

/// To the digits of the worked values.
void Igual(double obtenido, double esperado, const char* que, std::size_t estacion = 0) {
    EXPECT_NEAR(obtenido, esperado, 1e-9 + 2e-10 * std::fabs(esperado)) << que << " " << estacion;
}

TEST(DisenoEscaleraT, SeccionesAFlexion) {
    for (const auto& seccion : SeccionesAFlexion) {
        const AceroCaras As = CalculeRefuerzoEscalera(seccion.M, seccion.Ancho, seccion.Alto, seccion.g);
        Igual(As.AsSup, seccion.AsSup, seccion.Que);
        Igual(As.AsInf, seccion.AsInf, seccion.Que);
    }
    const AceroCaras nada = CalculeRefuerzoEscalera(0, 1.2, 0.15, {});
    EXPECT_EQ(nada.AsSup + nada.AsInf, 0);
}

TEST(DisenoEscaleraT, EstribosDeUnTramo) {
    for (const auto& caso : EstribosDeTramos) {
        DatosEscaleraT d;
        d.B = caso.B;
        d.HT = caso.HT;
        d.L = caso.L;
        EstaticaEscaleraT estatica;
        estatica.Alfa = std::atan2(caso.H / 2, caso.L);
        estatica.MomentoHorizontal = caso.MomentoHorizontal;
        double area = 0;
        const EstribosTramo estribos =
            CalculeEstribos(caso.Corte, caso.Torsor, estatica, caso.X, d, caso.g, area);
        Igual(estribos.Separacion, caso.Separacion, caso.Que);
        Igual(estribos.AsLongitudinal, caso.AsLongitudinal, caso.Que);
        EXPECT_EQ(area, caso.Area) << caso.Que;
    }
}

/// A stair worked apart: every field of stations of every kind.
TEST(DisenoEscaleraT, EscaleraTrabajada) {
    ResultadosEscaleraT r;
    CalcularEscaleraT(EscaleraTTrabajada(), GeneralesTrabajados, r);
    ASSERT_FALSE(r.Error);
    const auto comparar = [](const auto& punto, const auto& columnas, const auto& fila, const char* que) {
        for (std::size_t k = 0; k < std::size(columnas); ++k)
            Igual(punto.*columnas[k], fila[k + 1], que, 100 * static_cast<std::size_t>(fila[0]) + k);
    };
    for (const auto& fila : TramosTrabajados)
        comparar(r.TramoT[static_cast<std::size_t>(fila[0])], ColumnasDeTramo, fila, "tramo");
    for (const auto& fila : DescansosTrabajados) {
        const auto j = static_cast<std::size_t>(fila[0]);
        const EscaleraDescansoPunto& p = r.DescansoT[j];
        comparar(p, ColumnasDeDescanso, fila, "descanso");
        Igual(p.TensionAdmisible, std::sqrt(210) * 0.53, "TensionAdmisible", j);
        EXPECT_EQ(p.FallaCorte, j <= 2 ? "Falla por Corte" : "") << j;
    }
}

/// What the flight and the landing do apart: greater of two demands, and the sign of the lateral moment.
TEST(DisenoEscaleraT, CarasYSignos) {
    const DatosEscaleraT d = EscaleraTTrabajada();
    EscaleraTramoPunto p;
    p.EnvolventeNegativa = -9000;  // past the limit moment: steel on both faces
    p.EnvolventePositiva = 10000;
    p.MomentoY = -3000;
    DisenarFlexionTramo(d, {}, {}, p);
    const double superior = p.AsSuperior;
    const double inferior = p.AsInferior;
    p.EnvolventePositiva = 0;
    DisenarFlexionTramo(d, {}, {}, p);
    EXPECT_EQ(p.AsSuperior, superior);  // that of the negative moment is the greater
    EXPECT_GT(p.AsInferior, 0);
    EXPECT_LT(p.AsInferior, inferior);
    EXPECT_GT(p.AsY, 0);

    EscaleraDescansoPunto q;
    q.MomentoY = -3000;
    DisenarDescanso(d, {}, {}, q);
    EXPECT_EQ(q.AsY, 0);
    // Equal stresses pass: 0.53·√FC against FS·CorteY/(0.85·t·dl), with numbers that are exact.
    DatosEscaleraT igual;
    igual.Hd = 0.2;
    igual.B = 1.025;
    DatosGenerales g;
    g.FC = 100;
    g.FS = 1;
    q = {};
    q.CorteY = -5.3 * 0.85 * 20 * 100 * (1 - 1e-12);
    DisenarDescanso(igual, g, {}, q);
    EXPECT_NEAR(q.TensionCorte, 5.3, 1e-9);
    EXPECT_EQ(q.FallaCorte, "");
}

Avisos AvisosCon(const DatosEscaleraT& d, const DatosGenerales& g = {}) {
    ResultadosEscaleraT r;
    CalcularEscaleraT(d, g, r);
    return AvisosDe({d, g, r});
}

bool Contiene(const Avisos& avisos, Gravedad peso, const std::string& linea) {
    return std::any_of(avisos.begin(), avisos.end(),
                       [&](const Aviso& aviso) { return aviso.Peso == peso && EnUnaLinea(aviso) == linea; });
}

/// The worked stair: a minimum of 8.45 cm² in the flight, 4.68 in the landing, 7.68 kgf/cm² of shear.
TEST(AvisosDeEscalera, EscaleraTrabajada) {
    const Avisos avisos = AvisosCon(EscaleraTTrabajada(), GeneralesTrabajados);
    EXPECT_EQ(avisos.size(), 2U);
    EXPECT_TRUE(Contiene(avisos, Gravedad::Nota,
                         "Tramo, X = 0,28 m a 2,52 m: El acero teórico es menor que el mínimo de 8,45 cm²."));
    EXPECT_TRUE(Contiene(avisos, Gravedad::Falla, "Descanso, θ = 0° a 15°: El descanso falla por corte."));
}

TEST(AvisosDeEscalera, SeccionesQueNoDan) {
    DatosGenerales g = GeneralesTrabajados;
    DatosEscaleraT d = EscaleraTTrabajada();
    d.HT = 0.12;
    d.WT = 3000;
    d.Wd = 3200;
    Avisos avisos = AvisosCon(d, g);
    // c = 0.2·9/0.85² = 2.49 cm, less than the 3 of the cover.
    EXPECT_TRUE(Contiene(avisos, Gravedad::Falla,
                         "Tramo, X = 0,00 m; 2,80 m: El acero a compresión sale negativo: la sección es "
                         "demasiado delgada para su recubrimiento."));
    EXPECT_TRUE(Contiene(avisos, Gravedad::Advertencia,
                         "Tramo, X = 2,52 m a 2,80 m: Los estribos quedan a menos de 5 cm."));
    d.HT = 0.16;  // c = 3.6 cm; 1.33 times the limit at the joint
    d.Wd = 6400;
    avisos = AvisosCon(d, g);
    EXPECT_TRUE(
        Contiene(avisos, Gravedad::Nota, "Tramo, X = 0,00 m: La sección necesita acero a compresión."));
    d.B = 0.2;  // as narrow as that for the lateral moment
    d.HT = 0.5;
    d.WT = 20000;
    avisos = AvisosCon(d, g);
    EXPECT_TRUE(std::any_of(avisos.begin(), avisos.end(), [](const Aviso& aviso) {
        return aviso.Peso == Gravedad::Advertencia && aviso.Lugar.starts_with("Tramo, X = ") &&
               aviso.Texto ==
                   "La flexión lateral necesita acero a compresión, que no está en el acero lateral.";
    }));
}

TEST(AvisosDeEscalera, CalculoInterrumpidoOSinDatos) {
    EXPECT_TRUE(AvisosCon({}).empty());
    DatosGenerales g;
    g.FiMomento = 0;
    const Avisos avisos = AvisosCon(EscaleraTTrabajada(), g);
    ASSERT_EQ(avisos.size(), 1U);
    EXPECT_EQ(avisos[0].Peso, Gravedad::Falla);
    EXPECT_EQ(avisos[0].Texto,
              "El cálculo terminó con el error 11 (División por cero): los resultados están incompletos.");
    // A light stair with stirrups and steel enough: the minimum alone is told.
    for (const Aviso& aviso : AvisosCon({"", "", 2.4, 1.2, 3, 0.15, 0.15, 120, 100, 60}))
        EXPECT_EQ(aviso.Peso, Gravedad::Nota) << EnUnaLinea(aviso);
}

}  // namespace
}  // namespace trabex::prueba
