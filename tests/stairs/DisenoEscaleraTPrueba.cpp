#include <cmath>

#include <gtest/gtest.h>

#include "base/RefuerzoEscalera.h"
#include "stairs/CalcularEscaleraT.h"
#include "stairs/DisenoEscaleraT.h"
#include "stairs/ValoresEscaleraT.h"
#include "support/EscalerasTrabajadas.h"

namespace trabex::prueba {

using namespace escaleras;
namespace {

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

}  // namespace
}  // namespace trabex::prueba
