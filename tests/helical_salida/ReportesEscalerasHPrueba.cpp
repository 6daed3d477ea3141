// Panels to the printed digit and what reports stage from them. The digits come from the formulas worked
// apart from the program.

#include <gmock/gmock.h>

#include "helical/CalcularEscaleraH.h"
#include "helical/salida/GraficosEscalerasH.h"
#include "helical/salida/PanelesEscaleraH.h"
#include "support/MontajeDePrueba.h"

namespace trabex {

using namespace helices;
using namespace helices::salida;
namespace {

/// A row as it shows, cells parted by bars.
std::string Fila(const cuadricula::HojaDeCuadricula& hoja, std::size_t i) {
    const documento::FilaDeTabla& fila = hoja.Celdas.Filas.at(i);
    if (fila.Rotulo) return std::get<std::string>(fila.Celdas.at(0));
    std::string texto;
    for (std::size_t c = 0; c < hoja.Celdas.Columnas.size(); ++c)
        texto += (c ? "|" : "") + cuadricula::TextoDeCelda(hoja.Celdas, i, c, {});
    return texto;
}

struct Calculo {
    explicit Calculo(DatosEscaleraH datos) : Datos(std::move(datos)) {
        CalcularEscaleraH(Datos, {}, Resultados);
    }
    EscaleraHCalculada Ver() const { return {Datos, Resultados}; }
    DatosEscaleraH Datos;
    ResultadosEscaleraH Resultados;
};

TEST(PanelesEscaleraH, LaEscaleraNuevaHastaElUltimoDigito) {
    const Calculo c(EscaleraHNuevaDe("H", ""));
    const auto fuerzas = ColoqueSolicitaciones(c.Ver());
    const auto diseno = ColoqueDiseno(c.Ver());
    ASSERT_EQ(fuerzas.Celdas.Filas.size(), 62U);
    ASSERT_EQ(diseno.Celdas.Filas.size(), 57U);
    // The other rows are read from the reports, which take them from here, by the test of values.
    const std::pair<std::size_t, const char*> deFuerzas[]{
        {0, "APOYO SUPERIOR DE LA ESCALERA DE LA ESCALERA HELICOIDAL"},
        {1, "130|-9.330,21|-6.333,65|6.210,12|0,00|-4.085,27|19.259,08|-456,64|-288,14"},
        {28, "CENTRO DE LA ESCALERA HELICOIDAL"},
        {56, "APOYO INFERIOR DE LA ESCALERA HELICOIDAL"},
        {57, "REACCiÖN SOBRE LOS APOYOS:"},
        {58, " Reacción Vertical en el Apoyo Superior = 8508 kgf"},
        {59, " Reacción Horizontal en el Apoyo Superior = -10639 kgf"},
        {60, " Reacción Vertical en el Apoyo Inferior = 8508 kgf"},
        {61, " Reacción Horizontal en el Apoyo Inferior = 10639 kgf"}};
    for (const auto& [i, texto] : deFuerzas) EXPECT_EQ(Fila(fuerzas, i), texto);
    // Steel below the minimum shows so among the flexure, and as the minimum in the design.
    const std::pair<std::size_t, const char*> deDiseno[]{
        {0, "APOYO SUPERIOR DE LA ESCALERA HELICOIDAL"},
        {8, "95|0,47|0,00|3,67|3,75|4,14|3,75|7,12|E 3/8 @30"},
        {28, "CENTRO DE LA ESCALERA HELICOIDAL"},
        {56, "APOYO INFERIOR DE LA ESCALERA HELICOIDAL"}};
    for (const auto& [i, texto] : deDiseno) EXPECT_EQ(Fila(diseno, i), texto);

    std::string titulos;
    for (const auto* hoja : {&fuerzas, &diseno})
        for (const auto& columna : hoja->Celdas.Columnas)
            titulos += cuadricula::TituloDeColumna(columna) + ";";
    EXPECT_EQ(titulos,
              "Progresiva grados;Normal N (kgf);Cortes QX (kgf);Cortes QY (kgf);Momentos MX (Inf) (kgf·m);"
              "Momentos MX (Sup) (kgf·m);Momentos MY (kgf·m);Torsión MT (kgf·m);Torsión TU (kgf·m²);"
              "Progresiva grados;Refuerzo por Flexión ASX (Inf) (cm²);Refuerzo por Flexión ASX (Sup) (cm²);"
              "Torsión ASX/Cara (cm²);ASX (Mín) (cm²);Refuerzo de Diseño ASX (Inf) (cm²);"
              "Refuerzo de Diseño ASX (Sup) (cm²);Refuerzo de Diseño ASY (cm²);Estribos;");
}

TEST(PanelesEscaleraH, MitadesDesigualesYSinDatos) {
    DatosEscaleraH e = EscaleraHNuevaDe("H", "");
    e.Inter = 7;  // does not divide the half
    const auto fuerzas = ColoqueSolicitaciones(Calculo(e).Ver());
    EXPECT_THAT(Fila(fuerzas, 19), testing::StartsWith("4|"));
    EXPECT_EQ(Fila(fuerzas, 20), "CENTRO DE LA ESCALERA HELICOIDAL");
    EXPECT_THAT(Fila(fuerzas, 21), testing::StartsWith("0|"));

    Calculo fallida(EscaleraHNuevaDe("H", ""));
    fallida.Resultados.Error = ErrorEjecucion(CodigoError::DivisionPorCero);
    EXPECT_TRUE(ColoqueDiseno(fallida.Ver()).Celdas.Filas.empty());
    const ResultadosEscaleraH nada;
    EXPECT_TRUE(ColoqueSolicitaciones({{}, nada}).Celdas.Filas.empty());
    EXPECT_TRUE(ColoqueDiseno({{}, nada}).Celdas.Filas.empty());
}

using ReportesEscalerasH = prueba::ConMontaje;

/// Their rows are read from the reports by the test of values.
TEST_F(ReportesEscalerasH, LosDosMontajes) {
    const Calculo c(EscaleraHNuevaDe("H-1", "TÍTULO"));
    const auto estaLaEscalera = [&](const char* titulo) {
        EXPECT_THAT(Montado("Generales", "Titulo"), testing::ElementsAre(titulo));
        EXPECT_THAT(Montado("EscaleraH", "'%s %g %g %g %d', Nombre, B, T, R, FV"),
                    testing::ElementsAre("H-1 1.5 0.15 2.5 8508"));
    };
    ASSERT_TRUE(GuardeGraficos(Entorno, {}, c.Ver(), {}, Superficie, Panel));
    EXPECT_EQ(Panel.Pasos.back(), 100);
    EXPECT_THAT(Superficie.Textos, testing::EndsWith("|SECCIÖN: 1,50 x 0,15|"));
    EXPECT_EQ(prueba::LeerArchivo(Entorno.Trabajo / "Foto"), "foto de " + Superficie.Textos);
    EXPECT_THAT(Montado("Grafico", "'%d %s', Numero, Nombre"), testing::ElementsAre("1 H-1"));
    estaLaEscalera("ANALISIS Y DISEÑO DE LOSAS Y VIGAS HELICOIDALES");
    EXPECT_EQ(Montado("EscaleraH1S", "''").size(), 54U);

    ASSERT_TRUE(LLenarDatos(Entorno, {}, c.Ver()));
    estaLaEscalera("ANALISIS Y DISEÑO DE LOSAS HELICOIDALES");
    EXPECT_TRUE(Montado("EscaleraH1S", "''").empty());
    const auto estaciones = Montado("EscaleraHS", "'%d %.2f %.2f %d', Inter, N, MT, SEP");
    ASSERT_EQ(estaciones.size(), 54U);
    EXPECT_EQ(estaciones[0], "130 -9330.21 -456.64 30");
}

}  // namespace
}  // namespace trabex
