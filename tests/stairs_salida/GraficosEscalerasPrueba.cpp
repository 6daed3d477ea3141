// Staging of the stairs' sheets, read back from the scratch database.

#include <gmock/gmock.h>

#include "stairs/CalcularEscaleraT.h"
#include "stairs/salida/GraficosEscaleras.h"
#include "store/tablas/TablasEscalera.h"
#include "support/MontajeDePrueba.h"

namespace trabex {

using namespace almacen::tablas;
using namespace escaleras;
using namespace escaleras::salida;
namespace {

using testing::ElementsAre;

struct GraficosEscaleras : prueba::ConMontaje {
    GraficosEscaleras()
        : ConMontaje(
              "INSERT INTO EscaleraTDatos VALUES ('A', 'UNA'), ('B', ''), ('Ñ', 'VACÍA');"
              "INSERT INTO EscaleraT VALUES ('A', 2.4, 1.2, 3, 0.15, 0.15, 1200, 1000, 600),"
              " ('B', 2.7, 1.5, 3, 0.2, 0.2, 2076, 1865, 1040);") {
        AbrirConexion(Proyecto.ConexionProyecto, Carpeta / "obra.los");
        AbrirRecordset(Proyecto.ConexionProyecto, Proyecto.RegistrosProyecto, ConsultaListaEscalerasT);
        Proyecto.RegistrosProyecto.MoverA(2);
        LeaDatosEscalera(Proyecto, actual);
        CalcularEscaleraT(actual, generales, resultados);
    }
    /// Stages an option; each row as "number title loads".
    std::vector<std::string> Montar(std::uint8_t opcion) {
        Estado.OpcionGrafico = opcion;
        Panel = {};
        EXPECT_TRUE(GuardeGraficos(Entorno, {Proyecto, datos, {actual, generales, resultados}}, {},
                                   Superficie, Panel, Estado));
        EXPECT_EQ(Proyecto.RegistrosProyecto.Posicion(), 2);
        EXPECT_THAT(Montado("Generales", "Titulo"),
                    ElementsAre("ANALISIS Y DISEÑO DE ESCALERAS AUTOPORTANTES"));
        return Montado("Grafico", "'%d %s %g %g %g', Numero, Losa, CargaTramo, CargaVolado, CargaPermanente");
    }

    DatosDelProyecto datos;
    DatosEscaleraT actual;
    DatosGenerales generales;
    ResultadosEscaleraT resultados;
};

TEST_F(GraficosEscaleras, CadaOpcionConSusHojasYCargas) {
    EXPECT_THAT(Montar(0), ElementsAre("1 B: GEOMETRÍA 2076 1865 1040", "2 B: SOLICITACIONES 2076 1865 1040",
                                       "3 B: DISEÑO 2076 1865 1040", "4 B: REACCIONES 2076 1865 1040"));
    EXPECT_THAT(Panel.Pasos, ElementsAre(0, 25, 50, 75, 100));
    EXPECT_EQ(Panel.Rotulo, "Exportando la Escalera: B");

    const auto todas = Montar(1);
    ASSERT_EQ(todas.size(), 12U);
    EXPECT_EQ(todas[3], "4 A: REACCIONES 1200 1000 600");
    EXPECT_EQ(todas[6], "7 B: DISEÑO 2076 1865 1040");
    EXPECT_EQ(todas[11], "12 Ñ: REACCIONES 0 0 0");  // a stair of zeros: an empty sheet
    EXPECT_EQ(Superficie.Textos, "");
    EXPECT_THAT(Panel.Pasos, ElementsAre(0, testing::DoubleNear(100 / 3.0, 1e-9),
                                         testing::DoubleNear(200 / 3.0, 1e-9), 100));

    EXPECT_EQ(Montar(2)[0], "1 A: GEOMETRÍA 1200 1000 600");
    EXPECT_EQ(Montar(3)[1], "2 B: SOLICITACIONES 2076 1865 1040");
    EXPECT_EQ(Montar(4)[0], "1 A: DISEÑO 1200 1000 600");
    EXPECT_EQ(Montar(5)[1], "2 B: REACCIONES EN VIGAS 2076 1865 1040");
}

/// Twips of a page's width less 33 mm of margins: of Letter and A4, upright and across.
TEST_F(GraficosEscaleras, ElPapelDaElTamanoDeLaSuperficie) {
    for (const auto& [a4, apaisado, milimetros] :
         {std::tuple{false, false, 215.9}, {false, true, 279.4}, {true, false, 210.0}, {true, true, 297.0}}) {
        Estado.Papel = {a4, apaisado};
        Montar(0);
        EXPECT_NEAR(Superficie.Tamano.Ancho, (milimetros - 33) / 25.4 * 1440, 15);
        EXPECT_EQ(Superficie.Tamano.Ancho < Superficie.Tamano.Alto, !apaisado);
    }
}

}  // namespace
}  // namespace trabex
