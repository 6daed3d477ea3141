#include <gtest/gtest.h>

#include "stairs/CalcularEscaleraT.h"
#include "stairs/FilasEscaleraT.h"
#include "support/Errores.h"

namespace trabex::prueba {

using namespace escaleras;
namespace {

struct Calculada {
    explicit Calculada(DatosEscaleraT datos) : Datos(std::move(datos)) {
        CalcularEscaleraT(Datos, Generales, Resultados);
    }
    EscaleraCalculada Ver() const { return {Datos, Generales, Resultados}; }

    DatosEscaleraT Datos;
    DatosGenerales Generales;
    ResultadosEscaleraT Resultados;
};

DatosEscaleraT Modelo() {
    return {"E-1", "", 2.4, 1.2, 3, 0.15, 0.15, 1200, 1000, 600};
}

/// Offset and label of each row, and under them its figures: the flight's, the landing's.
std::string TextoDe(const std::vector<FilaDeHoja>& filas) {
    std::string texto;
    for (const FilaDeHoja& fila : filas) {
        texto += Formato(fila.Desfase, "0.000", {"", "."}) + " " + std::string(fila.Rotulo) + "\n";
        for (const LineaDeCifras& linea : fila.Lineas) {
            for (const Cifra& cifra : linea.Tramo) texto += cifra.Texto + " ";
            texto += "/";
            for (const Cifra& cifra : linea.Descanso) texto += " " + cifra.Texto;
            texto += "\n";
        }
    }
    return texto;
}

// The worked stair, solved apart from the program with the closed form's formulas and a calculator.
TEST(HojasEscaleraT, CasoTrabajado) {
    const Calculada e(Modelo());
    EXPECT_EQ(TextoDe(FilasDeSolicitaciones(e.Ver(), {})), R"(0.374 ENVOL. MOMENTOS (kgf-m) MX:
-782 -436 -159 0 0 0 0 0 -159 -405 -720 / -720 -939 -1094 -1174 -1175 -1095 -941
0 0 0 49 188 257 258 189 51 0 0 / 0 0 0 0 0 0 0
1.280 ENVOLVENTE Cortes (kgf) VX:
1345 1100 856 612 368 124 258 503 747 991 1235 / 1200 1159 1039 849 600 311 0
1.387 MOMENTOS EJE Y (kgf-m) MY:
2661 2661 2661 2661 2661 2661 2661 2661 2661 2661 2661 / 2550 2463 2209 1803 1275 660 0
1.868 MOMENTO TORSOR (kgf-m) MT:
554 554 554 554 554 554 554 554 554 554 554 / -941 -909 -815 -665 -470 -243 0
2.348 FUERZA AXIAL (kgf) N:
5767 5614 5462 5309 5156 5004 4851 4698 4546 4393 4240 / 4251 4106 3681 3006 2125 1100 0
2.828 CORTES EJE Y (kgf) VY:
0 0 0 0 0 0 0 0 0 0 0 / 0 -1100 -2125 -3006 -3681 -4106 -4251
3.680 PROGRESIVA (m):
0,00 0,24 0,48 0,72 0,96 1,20 1,44 1,68 1,92 2,16 2,40 / 90º 75º 60º 45º 30º 15º 0º
)");
    EXPECT_EQ(TextoDe(FilasDeDiseno(e.Ver(), {})), R"(0.373 (1)+(2) REFUERZO DE DISEÑO (cm2) ASX:
5,57 4,40 3,48 2,96 2,96 2,96 2,96 2,96 3,48 4,30 5,36 / 2,40 3,15 3,68 3,96 3,96 3,68 3,15
2,96 2,96 2,96 3,12 3,58 3,81 3,81 3,58 3,13 2,96 2,96 / 0,00 0,00 0,00 0,00 0,00 0,00 0,00
1.067 (2) REFUERZO POR TORSIÓN (cm2) ASX:
2,96 2,96 2,96 2,96 2,96 2,96 2,96 2,96 2,96 2,96 2,96 /
2,96 2,96 2,96 2,96 2,96 2,96 2,96 2,96 2,96 2,96 2,96 /
1.708 (1) REFUERZO POR FLEXIÓN (cm2) ASX:
2,61 1,44 0,52 0,00 0,00 0,00 0,00 0,00 0,52 1,34 2,40 / 2,40 3,15 3,68 3,96 3,96 3,68 3,15
0,00 0,00 0,00 0,16 0,62 0,85 0,85 0,62 0,17 0,00 0,00 / 0,00 0,00 0,00 0,00 0,00 0,00 0,00
2.348 REFUERZO EJE Y (cm2) ASY:
0,93 0,93 0,93 0,93 0,93 0,93 0,93 0,93 0,93 0,93 0,93 / 0,89 0,86 0,77 0,63 0,45 0,23 0,00
2.945 ESTRIBOS EN EL TRAMO:
E 3/8@30 E 3/8@30 E 3/8@30 E 3/8@30 E 3/8@30 E 3/8@30 E 3/8@30 E 3/8@30 E 3/8@30 E 3/8@30 E 3/8@30 /
3.682 PROGRESIVA (m):
0,00 0,24 0,48 0,72 0,96 1,20 1,44 1,68 1,92 2,16 2,40 / 90º 75º 60º 45º 30º 15º 0º
)");
}

TEST(HojasEscaleraT, ElEstriboSeLeeDeLaEstacion) {
    Calculada e(Modelo());
    e.Resultados.TramoT[10].AreaEstribo = 1.27;
    e.Resultados.TramoT[10].SeparacionEstribo = 12.6;
    e.Resultados.TramoT[0].AreaEstribo = 0;
    e.Resultados.TramoT[0].AsTorsion = 1;
    const auto diseno = FilasDeDiseno(e.Ver(), {});
    const std::vector<Cifra>& estribos = diseno[4].Lineas[0].Tramo;
    EXPECT_EQ(estribos[0].Texto, "E 1/2@13");
    EXPECT_EQ(estribos[1].Texto, "E 3/8@30");
    EXPECT_EQ(estribos[10].Texto, "E 1/2@30");  // none at all reads so too
    EXPECT_EQ(diseno[0].Lineas[0].Tramo[10].Texto, "3,40");
}

TEST(HojasEscaleraT, PeldanosDeUnTramo) {
    const auto de = [](double L, double H) {
        DatosEscaleraT e = Modelo();
        e.L = L;
        e.H = H;
        return PeldanosDe(e);
    };
    EXPECT_EQ(de(2.4, 3).Huellas, 8);
    EXPECT_DOUBLE_EQ(de(2.4, 3).Huella, 0.3);
    EXPECT_NEAR(de(2.4, 3).Contrahuella, 1.5 / 8, 1e-15);
    EXPECT_EQ(de(0.2, 3).Huellas, 1);
    EXPECT_EQ(de(0.75, 3).Huellas, 2);  // 2.5 goes to the even neighbour
    const auto codigo = [&](double L, double H) { return CodigoDe([&] { de(L, H); }); };
    EXPECT_EQ(codigo(0.15, 3), 11);  // 0.5 goes to 0
    EXPECT_EQ(codigo(2.4, 0.18), 11);
    EXPECT_EQ(codigo(2.4, 0.19), 0);
    EXPECT_EQ(codigo(1e5, 3), 6);
}

}  // namespace
}  // namespace trabex::prueba
