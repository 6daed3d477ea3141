#include <random>

#include <gmock/gmock.h>

#include "slab/CalcularLosa.h"
#include "slab/salida/GraficosLosas.h"
#include "slab/salida/ReporteLosas.h"
#include "support/LosasDePrueba.h"
#include "support/MontajeDePrueba.h"

namespace trabex {

using namespace almacen;
using namespace losas;
using namespace losas::salida;
using namespace prueba;
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

/// A project of ribbed and solid slabs, one of them without spans.
class ReporteLosas : public ConMontaje {
  protected:
    ReporteLosas() {
        Abrir(Proyecto, Carpeta / "obra.los");
        std::mt19937 azar(7);
        Transaccion guardado(Proyecto.ConexionProyecto);
        for (int i = 0; i < 12; ++i) {
            Losa losa = LosaAlAzar(azar, i % 3 == 0);
            losa.Nombre = "N+3.00-" + std::string(1, static_cast<char>('A' + i));
            AgregarLosa(Proyecto, losa);
        }
        AgregarLosa(Proyecto, {.Nombre = "Sin tramos"});
        guardado.Confirmar();
        Abrir(Proyecto, Carpeta / "obra.los");
        Datos.Proyecto = "TORRE Ñ";
    }
    bool Llenar(int fila) { return LLeneResultados(Entorno, {Proyecto, Datos, Generales, fila}, Estado); }
    /// Draws what an option asks for, of the slab of a row or of all; number and title of each sheet.
    std::vector<std::string> Dibujar(std::uint8_t opcion, int fila) {
        Estado.OpcionGrafico = opcion;
        dibujo::losa::HojaLosa hoja;
        hoja.Vista.Zoom = 3;
        EXPECT_TRUE(
            GuardeGraficos(Entorno, {Proyecto, Datos, Generales, fila}, hoja, Superficie, Panel, Estado));
        return Montado("Grafico", "'%d %s', Numero, Losa");
    }

    static constexpr std::size_t Losas = 13;
    DatosDelProyecto Datos;
    DatosGenerales Generales;
};

TEST_F(ReporteLosas, TodasConSusGeneralesYLuegoUnaEnSuLugar) {
    Estado.OpcionExportarLosas = 1;
    Estado.ExportarDesplazamientos = true;
    Proyecto.RegistrosProyecto.MoverA(4);
    ASSERT_TRUE(Llenar(4));
    EXPECT_EQ(Proyecto.RegistrosProyecto.Posicion(), 4);
    EXPECT_THAT(
        Montado("Generales", "'%s|%s|%s|%s|%s|%d', Titulo, Version, Usuario, Proyecto, Nombre, Resumen"),
        ElementsAre("ANALISIS Y DISEÑO DE LOSAS|2024|ING. NÚÑEZ|TORRE Ñ|N+3.00-D|1"));
    EXPECT_THAT(Montado("LosaG", "'%d', FC"), ElementsAre("250"));
    EXPECT_EQ(Montado("LosaDatos", "''").size(), Losas);
    EXPECT_TRUE(Montado("LosaEjes WHERE Nombre = 'Sin tramos'", "''").empty());
    Estado.OpcionExportarLosas = 0;
    Proyecto.RegistrosProyecto.MoverAlUltimo();
    ASSERT_TRUE(Llenar(3));
    EXPECT_THAT(Montado("LosaDatos", "Nombre"), ElementsAre("N+3.00-C"));
    EXPECT_THAT(Montado("LosaTramos", "Nombre"), testing::Each("N+3.00-C"));
}

TEST_F(ReporteLosas, SinPlantillaElReporteQuedaVacioYNadaEnAlto) {
    std::filesystem::remove(Entorno.CaminoPrograma / "Imagen" / "Temporal.tbx");
    EXPECT_FALSE(Llenar(1));
    EXPECT_FALSE(std::filesystem::exists(montaje::TemporalMdb(Entorno)));
}

TEST_F(ReporteLosas, UnResultadoQueNoEsNumeroQuedaNulo) {
    Losa losa = LosaContinua({4, 5}, 300, 200);
    losa.Nombre = "Cero";
    losa.So = 0;
    AgregarLosa(Proyecto, losa);
    ASSERT_TRUE(Llenar(Proyecto.RegistrosProyecto.Posicion()));
    EXPECT_THAT(Montado("LosaTramos", "'%s %d', VA IS NULL, MuB < 0"), ElementsAre("1 1", "1 0"));
}

TEST_F(ReporteLosas, LosGraficosSiguenLaOpcionConSusTitulos) {
    EXPECT_THAT(Dibujar(0, 2), ElementsAre("1 N+3.00-B: GEOMETRÍA DE LA LOSA",
                                           "2 N+3.00-B: CORTES Y MOMENTOS", "3 N+3.00-B: ANÁLISIS Y DISEÑO"));
    EXPECT_EQ(Panel.Rotulo, "Exportando la Losa: N+3.00-B");
    EXPECT_THAT(Montado("Generales", "'%d', Resumen IS NULL"), ElementsAre("1"));
    const auto todas = Dibujar(1, 2);
    ASSERT_EQ(todas.size(), 3 * Losas);
    EXPECT_EQ(todas[4], "5 N+3.00-B: CORTES Y MOMENTOS");
    EXPECT_EQ(Panel.Pasos.back(), 100);
    EXPECT_EQ(Superficie.Tamano.Ancho, 14100);
    EXPECT_FALSE(Panel.Visible);

    const auto reacciones = Dibujar(5, 2);
    ASSERT_EQ(reacciones.size(), Losas);
    EXPECT_EQ(reacciones[0], "1 N+3.00-A: REACCIONES SOBRE VIGAS");
    const std::string textos = Montado("Grafico", "'%s', Grafico")[0];
    EXPECT_THAT(textos, HasSubstr("CP (kgf/metro):"));
    EXPECT_THAT(textos, testing::Not(HasSubstr("As Sup")));
    EXPECT_THAT(LeerArchivo(Entorno.Trabajo / "Foto"), StartsWith("foto de "));
}

TEST_F(ReporteLosas, UnaLosaLargaSigueEnOtrasHojasConElEjeQueLasUne) {
    Losa losa = LosaUniforme(12, 5, 300, 200);
    losa.Nombre = "Larga";
    AgregarLosa(Proyecto, losa);
    const auto hojas = Dibujar(0, Proyecto.RegistrosProyecto.Posicion());
    ASSERT_EQ(hojas.size(), 6U);
    EXPECT_EQ(hojas[2], "3 Larga: CORTES Y MOMENTOS (HOJA 1 DE 2)");
    EXPECT_EQ(hojas[5], "6 Larga: ANÁLISIS Y DISEÑO (HOJA 2 DE 2)");
    const auto textos = Montado("Grafico", "'%s', Grafico");
    EXPECT_THAT(textos[4], HasSubstr("Larga   (Ejes 1 a 7)"));
    EXPECT_THAT(textos[5], HasSubstr("Larga   (Ejes 7 a 13)"));
    EXPECT_EQ(Panel.Pasos.back(), 100);
}

TEST_F(ReporteLosas, UnFalloOQuienCancelaALaMitadNoDejanNadaYDevuelvenLaLista) {
    Superficie.FallaEn = 5;
    Estado.OpcionGrafico = Estado.OpcionExportarLosas = 1;
    Proyecto.RegistrosProyecto.MoverA(6);
    const auto dibujar = [this] {
        GuardeGraficos(Entorno, {Proyecto, Datos, Generales, 6}, {}, Superficie, Panel, Estado);
    };
    EXPECT_THROW(dibujar(), ErrorEjecucion);
    Panel.CancelaEn = Panel.Pasos.size() + 2;
    EXPECT_THROW(dibujar(), TrabajoCancelado);
    EXPECT_FALSE(Panel.Visible);
    const auto hastaLaMitad = [](double parte) { return parte < 0.5; };
    EXPECT_THROW(LLeneResultados(Entorno, {Proyecto, Datos, Generales, 6}, Estado, hastaLaMitad),
                 TrabajoCancelado);
    EXPECT_EQ(Proyecto.RegistrosProyecto.Posicion(), 6);
    EXPECT_TRUE(Montado("Grafico", "''").empty());
    EXPECT_TRUE(Montado("LosaDatos", "''").empty());
}

}  // namespace
}  // namespace trabex
