#include <random>

#include <gmock/gmock.h>

#include "base/ErrorEjecucion.h"
#include "slab/CalcularLosa.h"
#include "slab/salida/GraficosLosas.h"
#include "slab/salida/ReporteLosas.h"
#include "support/BaseSqlite.h"
#include "support/CarpetaTemporal.h"
#include "support/LosasDePrueba.h"
#include "support/Lugares.h"
#include "support/MontajeDePrueba.h"
#include "support/ProyectoDePrueba.h"

namespace trabex {

using namespace almacen;
using namespace almacen::tablas;
using namespace dibujo;
using namespace dibujo::losa;
using namespace losas;
using namespace losas::salida;
using namespace montaje;
namespace {

using namespace prueba;
using testing::ElementsAre;
using testing::HasSubstr;

double N(const FilaSqlite& fila, const char* campo) {
    return std::stod(fila.at(campo));
}

/// A project of ribbed and solid slabs, one of them without spans, its folders and the state of its reports.
class ReporteLosas : public testing::Test {
  protected:
    ReporteLosas() {
        std::filesystem::create_directories(Entorno.CaminoPrograma / "Imagen");
        std::filesystem::create_directories(Entorno.Trabajo);
        CrearBaseDatos(Entorno.CaminoPrograma / "Imagen" / "Temporal.tbx",
                       LeerArchivo(prueba::Install() + "/Imagen/Temporal.sql"));
        CrearBaseDatos(Carpeta / "obra.los", EsquemaDeProyecto());
        Abrir(Proyecto, Carpeta / "obra.los");
        std::mt19937 azar(7);
        for (int i = 0; i < 12; ++i) {
            Losas.push_back(LosaAlAzar(azar, i % 3 == 0));
            Losas.back().Nombre = "N+3.00-" + std::string(1, static_cast<char>('A' + i));
        }
        Losas.push_back({.Nombre = "Sin tramos"});
        Transaccion guardado(Proyecto.ConexionProyecto);
        for (const Losa& losa : Losas) AgregarLosa(Proyecto, losa);
        guardado.Confirmar();
        Abrir(Proyecto, Carpeta / "obra.los");
        LeerDatosGenerales(Proyecto.ConexionProyecto, "ING. NÚÑEZ", Datos, Generales);
        Datos.Proyecto = "TORRE Ñ";
    }

    ProyectoParaReporte Origen(int fila = 1) { return {Proyecto, Datos, Generales, fila}; }
    std::vector<FilaSqlite> Consultar(const std::string& sql) {
        return ConsultarSqlite(TemporalMdb(Entorno), sql);
    }
    CarpetaTemporal Carpeta;
    EntornoReportes Entorno{Carpeta / "programa", Carpeta / "trabajo", "ING. NÚÑEZ"};
    ProyectoAbierto Proyecto;
    DatosDelProyecto Datos;
    DatosGenerales Generales;
    EstadoReportes Estado;
    std::vector<Losa> Losas;
};

TEST_F(ReporteLosas, TodasLasLosasConSusGenerales) {
    Estado.OpcionExportarLosas = 1;
    Estado.ExportarDesplazamientos = true;
    Proyecto.RegistrosProyecto.MoverA(4);
    ASSERT_TRUE(LLeneResultados(Entorno, Origen(4), Estado));
    EXPECT_EQ(Proyecto.RegistrosProyecto.Posicion(), 4);

    const auto generales = Consultar("SELECT * FROM Generales");
    ASSERT_EQ(generales.size(), 1U);
    EXPECT_EQ(generales[0].at("Titulo"), "ANALISIS Y DISEÑO DE LOSAS");
    EXPECT_EQ(generales[0].at("Version"), "2024");
    EXPECT_EQ(generales[0].at("Usuario"), "ING. NÚÑEZ");
    EXPECT_EQ(generales[0].at("Proyecto"), "TORRE Ñ");
    EXPECT_EQ(generales[0].at("Nombre"), "N+3.00-D");
    EXPECT_EQ(generales[0].at("Resumen"), "1");
    EXPECT_EQ(Consultar("SELECT * FROM LosaG")[0].at("FC"), "250");
    EXPECT_EQ(Consultar("SELECT * FROM LosaDatos").size(), Losas.size());
    EXPECT_TRUE(Consultar("SELECT * FROM LosaEjes WHERE Nombre = 'Sin tramos'").empty());
}

TEST_F(ReporteLosas, LaSeleccionadaReemplazaElReporteAnterior) {
    Estado.OpcionExportarLosas = 1;
    ASSERT_TRUE(LLeneResultados(Entorno, Origen(), Estado));
    Estado.OpcionExportarLosas = 0;
    Proyecto.RegistrosProyecto.MoverAlUltimo();
    ASSERT_TRUE(LLeneResultados(Entorno, Origen(3), Estado));
    const auto losas = Consultar("SELECT Nombre FROM LosaDatos");
    ASSERT_EQ(losas.size(), 1U);
    EXPECT_EQ(losas[0].at("Nombre"), Losas[2].Nombre);
    EXPECT_EQ(Consultar("SELECT DISTINCT Nombre FROM LosaTramos").size(), 1U);
}

TEST_F(ReporteLosas, SinPlantillaElReporteQuedaVacioYNadaEnAlto) {
    std::filesystem::remove(Entorno.CaminoPrograma / "Imagen" / "Temporal.tbx");
    EXPECT_FALSE(LLeneResultados(Entorno, Origen(), Estado));
    EXPECT_FALSE(std::filesystem::exists(TemporalMdb(Entorno)));
}

TEST_F(ReporteLosas, UnResultadoQueNoEsNumeroQuedaNulo) {
    Losa losa = LosaContinua({4, 5}, 300, 200);
    losa.Nombre = "Cero";
    losa.So = 0;
    AgregarLosa(Proyecto, losa);
    const int fila = Proyecto.RegistrosProyecto.Posicion();
    ASSERT_TRUE(LLeneResultados(Entorno, Origen(fila), Estado));
    const auto tramos = Consultar("SELECT VA, MuB FROM LosaTramos");
    ASSERT_EQ(tramos.size(), 2U);
    EXPECT_EQ(tramos[0].at("VA"), "NULL");
    EXPECT_LT(N(tramos[0], "MuB"), 0);
}

TEST_F(ReporteLosas, LosGraficosSiguenLaOpcionConSusTitulos) {
    SuperficieDeTextos superficie;
    PanelAnotado panel;
    HojaLosa hoja;
    hoja.Vista.Zoom = 3;
    const auto titulos = [&](std::uint8_t opcion, int fila) {
        Estado.OpcionGrafico = opcion;
        EXPECT_TRUE(GuardeGraficos(Entorno, Origen(fila), hoja, superficie, panel, Estado));
        std::vector<std::string> lista;
        for (const FilaSqlite& f : Consultar("SELECT Numero, Losa FROM Grafico ORDER BY rowid"))
            lista.push_back(f.at("Numero") + " " + f.at("Losa"));
        return lista;
    };
    EXPECT_THAT(titulos(0, 2), ElementsAre("1 N+3.00-B: GEOMETRÍA DE LA LOSA",
                                           "2 N+3.00-B: CORTES Y MOMENTOS", "3 N+3.00-B: ANÁLISIS Y DISEÑO"));
    EXPECT_EQ(panel.Rotulo, "Exportando la Losa: N+3.00-B");
    EXPECT_EQ(Consultar("SELECT Resumen FROM Generales")[0].at("Resumen"), "NULL");
    const auto todas = titulos(1, 2);
    ASSERT_EQ(todas.size(), 3 * Losas.size());
    EXPECT_EQ(todas[4], "5 N+3.00-B: CORTES Y MOMENTOS");
    EXPECT_EQ(panel.Pasos.back(), 100);
    EXPECT_EQ(superficie.Tamano.Ancho, 14100);
    EXPECT_FALSE(panel.Visible);

    const auto reacciones = titulos(5, 2);
    ASSERT_EQ(reacciones.size(), Losas.size());
    EXPECT_EQ(reacciones[0], "1 N+3.00-A: REACCIONES SOBRE VIGAS");
    const std::string textos = Consultar("SELECT CAST(Grafico AS TEXT) AS T FROM Grafico")[0].at("T");
    EXPECT_THAT(textos, HasSubstr("CP (kgf/metro):"));
    EXPECT_THAT(textos, testing::Not(HasSubstr("As Sup")));
    EXPECT_THAT(LeerArchivo(Entorno.Trabajo / "Foto"), testing::StartsWith("foto de "));
}

TEST_F(ReporteLosas, UnaLosaLargaSigueEnOtrasHojasConElEjeQueLasUne) {
    Losa losa = LosaUniforme(12, 5, 300, 200);
    losa.Nombre = "Larga";
    AgregarLosa(Proyecto, losa);
    SuperficieDeTextos superficie;
    PanelAnotado panel;
    Estado.OpcionGrafico = 0;
    ASSERT_TRUE(GuardeGraficos(Entorno, Origen(Proyecto.RegistrosProyecto.Posicion()), {}, superficie, panel,
                               Estado));
    const auto hojas = Consultar("SELECT Losa, CAST(Grafico AS TEXT) AS T FROM Grafico ORDER BY rowid");
    ASSERT_EQ(hojas.size(), 6U);
    EXPECT_EQ(hojas[2].at("Losa"), "Larga: CORTES Y MOMENTOS (HOJA 1 DE 2)");
    EXPECT_EQ(hojas[5].at("Losa"), "Larga: ANÁLISIS Y DISEÑO (HOJA 2 DE 2)");
    EXPECT_THAT(hojas[4].at("T"), HasSubstr("Larga   (Ejes 1 a 7)"));
    EXPECT_THAT(hojas[5].at("T"), HasSubstr("Larga   (Ejes 7 a 13)"));
    EXPECT_EQ(panel.Pasos.back(), 100);
}

TEST_F(ReporteLosas, UnFalloOQuienCancelaALaMitadNoDejanNadaYDevuelvenLaLista) {
    SuperficieDeTextos superficie;
    superficie.FallaEn = 5;
    PanelAnotado panel;
    Estado.OpcionGrafico = Estado.OpcionExportarLosas = 1;
    Proyecto.RegistrosProyecto.MoverA(6);
    EXPECT_THROW(GuardeGraficos(Entorno, Origen(6), {}, superficie, panel, Estado), ErrorEjecucion);
    panel.CancelaEn = panel.Pasos.size() + 2;
    superficie = {};
    EXPECT_THROW(GuardeGraficos(Entorno, Origen(6), {}, superficie, panel, Estado), TrabajoCancelado);
    EXPECT_FALSE(panel.Visible);
    const auto hastaLaMitad = [](double parte) { return parte < 0.5; };
    EXPECT_THROW(LLeneResultados(Entorno, Origen(6), Estado, hastaLaMitad), TrabajoCancelado);
    EXPECT_EQ(Proyecto.RegistrosProyecto.Posicion(), 6);
    EXPECT_TRUE(Consultar("SELECT Numero FROM Grafico").empty());
    EXPECT_TRUE(Consultar("SELECT Nombre FROM LosaDatos").empty());
}

}  // namespace
}  // namespace trabex
