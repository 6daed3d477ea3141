// Staging of the stairs' sheets, read back from the scratch database.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "stairs/CalcularEscaleraT.h"
#include "stairs/salida/GraficosEscaleras.h"
#include "store/tablas/TablasEscalera.h"
#include "support/CarpetaTemporal.h"
#include "support/Lugares.h"
#include "support/MontajeDePrueba.h"
#include "support/ProyectoDePrueba.h"

namespace trabex {

using namespace almacen;
using namespace almacen::tablas;
using namespace escaleras;
using namespace escaleras::salida;
using namespace montaje;
namespace {

using testing::ElementsAre;

struct GraficosEscaleras : testing::Test {
    GraficosEscaleras() {
        std::filesystem::create_directories(carpeta / "programa" / "Imagen");
        std::filesystem::create_directories(carpeta / "Trabajo");
        CrearBaseDatos(carpeta / "programa" / "Imagen" / "Temporal.tbx",
                       prueba::LeerArchivo(prueba::Install() + "/Imagen/Temporal.sql"));
        CrearBaseDatos(carpeta / "obra.los",
                       prueba::EsquemaDeProyecto() +
                           "INSERT INTO EscaleraTDatos VALUES ('A', 'UNA'), ('B', ''), ('Ñ', 'VACÍA');"
                           "INSERT INTO EscaleraT VALUES ('A', 2.4, 1.2, 3, 0.15, 0.15, 1200, 1000, 600),"
                           " ('B', 2.7, 1.5, 3, 0.2, 0.2, 2076, 1865, 1040);");
        AbrirConexion(proyecto.ConexionProyecto, carpeta / "obra.los");
        AbrirRecordset(proyecto.ConexionProyecto, proyecto.RegistrosProyecto, ConsultaListaEscalerasT);
        proyecto.RegistrosProyecto.MoverA(2);
        LeaDatosEscalera(proyecto, actual);
        CalcularEscaleraT(actual, generales, resultados);
    }
    /// Stages an option; each row as "number title loads".
    std::vector<std::string> Montar(std::uint8_t opcion) {
        estado.OpcionGrafico = opcion;
        panel = {};
        const EntornoReportes entorno{carpeta / "programa", carpeta / "Trabajo", "U"};
        EXPECT_TRUE(GuardeGraficos(entorno, {proyecto, datos, {actual, generales, resultados}}, {},
                                   superficie, panel, estado));
        EXPECT_EQ(proyecto.RegistrosProyecto.Posicion(), 2);
        Conexion temporal;
        AbrirConexion(temporal, TemporalMdb(entorno));
        Recordset filas;
        AbrirRecordset(temporal, filas, "Grafico");
        std::vector<std::string> titulos;
        for (int fila = 1; fila <= filas.NumeroRegistros(); ++fila) {
            filas.MoverA(fila);
            titulos.push_back(std::to_string(filas.Entero16("Numero")) + " " + filas.Texto("Losa") + " " +
                              Formato(filas.Doble("CargaTramo"), "0", {}) + " " +
                              Formato(filas.Doble("CargaVolado"), "0", {}) + " " +
                              Formato(filas.Doble("CargaPermanente"), "0", {}));
        }
        AbrirRecordset(temporal, filas, "Generales");
        EXPECT_EQ(filas.Texto("Titulo"), "ANALISIS Y DISEÑO DE ESCALERAS AUTOPORTANTES");
        return titulos;
    }

    prueba::CarpetaTemporal carpeta;
    ProyectoAbierto proyecto;
    DatosDelProyecto datos;
    DatosEscaleraT actual;
    DatosGenerales generales;
    ResultadosEscaleraT resultados;
    prueba::SuperficieDeTextos superficie;
    prueba::PanelAnotado panel;
    EstadoReportes estado;
};

TEST_F(GraficosEscaleras, CadaOpcionConSusHojasYCargas) {
    EXPECT_THAT(Montar(0), ElementsAre("1 B: GEOMETRÍA 2076 1865 1040", "2 B: SOLICITACIONES 2076 1865 1040",
                                       "3 B: DISEÑO 2076 1865 1040", "4 B: REACCIONES 2076 1865 1040"));
    EXPECT_THAT(panel.Pasos, ElementsAre(0, 25, 50, 75, 100));
    EXPECT_EQ(panel.Rotulo, "Exportando la Escalera: B");

    const auto todas = Montar(1);
    ASSERT_EQ(todas.size(), 12U);
    EXPECT_EQ(todas[3], "4 A: REACCIONES 1200 1000 600");
    EXPECT_EQ(todas[6], "7 B: DISEÑO 2076 1865 1040");
    EXPECT_EQ(todas[11], "12 Ñ: REACCIONES 0 0 0");  // a stair of zeros: an empty sheet
    EXPECT_EQ(superficie.Textos, "");
    EXPECT_THAT(panel.Pasos, ElementsAre(0, testing::DoubleNear(100 / 3.0, 1e-9),
                                         testing::DoubleNear(200 / 3.0, 1e-9), 100));

    EXPECT_EQ(Montar(2)[0], "1 A: GEOMETRÍA 1200 1000 600");
    EXPECT_EQ(Montar(3)[1], "2 B: SOLICITACIONES 2076 1865 1040");
    EXPECT_EQ(Montar(4)[0], "1 A: DISEÑO 1200 1000 600");
    EXPECT_EQ(Montar(5)[1], "2 B: REACCIONES EN VIGAS 2076 1865 1040");
}

TEST_F(GraficosEscaleras, ElPapelDaElTamanoDeLaSuperficie) {
    const auto forma = [&](bool a4, bool apaisado) {
        estado.Papel = {a4, apaisado};
        Montar(0);
        return superficie.Tamano;
    };
    // Twips of the page's width less 33 mm of margins: 215.9, 279.4, 210 and 297 mm.
    EXPECT_NEAR(forma(false, false).Ancho, (215.9 - 33) / 25.4 * 1440, 15);
    EXPECT_NEAR(forma(false, true).Ancho, (279.4 - 33) / 25.4 * 1440, 15);
    EXPECT_NEAR(forma(true, false).Ancho, (210 - 33) / 25.4 * 1440, 15);
    EXPECT_NEAR(forma(true, true).Ancho, (297 - 33) / 25.4 * 1440, 15);
    EXPECT_GT(forma(true, false).Alto, forma(true, true).Alto);
}

}  // namespace
}  // namespace trabex
