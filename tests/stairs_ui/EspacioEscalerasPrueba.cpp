// The workspace of self-supporting stairs, with scripted answers, down to the file.

#include <gmock/gmock.h>

#include "stairs/ui/EscaleraT.h"
#include "stairs/ui/EscaleraTitulo.h"
#include "support/EspacioGuiado.h"

namespace trabex::prueba {

using namespace escaleras;
using namespace escaleras::ui;
namespace {

using testing::ElementsAre;

struct PantallaGuiada : PantallaEspacioGuiada, PantallaEscaleraT {
    bool MostrarEscaleraTNueva() override { return false; }
    void MostrarEscaleraTDatos(const TrabajoEscaleraT&) override { ADD_FAILURE(); }
    bool MostrarEscaleraTG() override { return false; }
    bool MostrarEscaleraTitulo() override { return TituloNuevo(); }

    std::function<bool()> TituloNuevo;
};

struct EspacioEscaleras : testing::Test, ProgramaGuiado {
    EspacioEscaleras()
        : ProgramaGuiado(
              "INSERT INTO EscaleraTDatos VALUES ('B', 'SEGUNDA'), ('A', 'PRIMERA');"
              "INSERT INTO EscaleraT VALUES ('A', 2.4, 1.2, 3, 0.15, 0.15, 1200, 1000, 600);") {
        espacio.Lista().Abrir();
    }
    PantallaGuiada vista;
    EscaleraT espacio{aplicacion, servicios, vista, vista};
};

TEST_F(EspacioEscaleras, AlAbrirSeVeLaPrimera) {
    EXPECT_EQ(vista.Titulo, "Trabex 2024   Proyecto:[OBRA.LOS]");
    EXPECT_THAT(vista.Filas, ElementsAre("A", "B"));
    EXPECT_EQ(vista.Encabezado, "ESCALERA: A");
    EXPECT_EQ(vista.Hoja, dibujo::escalera::VistaGeometria);
    EXPECT_EQ(vista.Dibujos, 1);  // nothing is drawn while it loads
    EXPECT_EQ(aplicacion.Generales.FS, 1.55);
    EXPECT_NEAR(espacio.Estado().Resultados.ReaccionVertical, 4080, 1e-9);
    EXPECT_GT(vista.Puestos.size(), 0U);  // steel below the minimum at some station

    espacio.Lista().Seleccionar(2);  // a stair without data keeps the results and shows an empty sheet
    EXPECT_EQ(vista.Encabezado, "ESCALERA: B");
    EXPECT_EQ(espacio.Estado().Abierta.L, 0);
    EXPECT_EQ(vista.Puestos.size(), 0U);
    EXPECT_NEAR(espacio.Estado().Resultados.ReaccionVertical, 4080, 1e-9);

    const int antes = vista.Restablecida;
    espacio.ElegirHoja(dibujo::escalera::VistaDiseno);
    EXPECT_EQ(vista.Restablecida, antes + 1);
    dialogos.Elegidos = {Proyecto("otra.los",
                                  "INSERT INTO EscaleraTDatos VALUES ('Z', ''), ('Z2', '');"
                                  "INSERT INTO EscaleraT VALUES ('Z2', 4, 1, 1.2, 0.3, 0.08,"
                                  " 9000, 9000, 9000);")};
    espacio.Lista().AbrirProyecto();
    EXPECT_TRUE(!vista.Fallan[1] && vista.Fallan[2]);  // its landing fails in shear, and it is not selected
    EXPECT_EQ(vista.Encabezado, "ESCALERA: Z");
    EXPECT_EQ(vista.Hoja, dibujo::escalera::VistaGeometria);
    EXPECT_EQ(espacio.Estado().Hoja.VistaActual, dibujo::escalera::VistaGeometria);
    espacio.Lista().AbrirProyecto();  // cancelled
    EXPECT_EQ(vista.Encabezado, "ESCALERA: Z");
}

TEST_F(EspacioEscaleras, RenombrarTitularYEliminar) {
    espacio.Lista().Seleccionar(2);
    vista.Renombrar = [](programa::Renombrar& operaciones) { operaciones.Aceptar("Beta"); };
    caja.Respuestas = {RespuestaSi};
    espacio.Lista().Renombrar();  // it has no row of data
    EXPECT_THAT(Columna("EscaleraTDatos", "Nombre"), ElementsAre("Beta", "A"));
    EXPECT_THAT(Columna("EscaleraT", "Nombre"), ElementsAre("A"));
    EXPECT_EQ(vista.Encabezado, "ESCALERA: Beta");
    vista.TituloNuevo = [&] { return EscaleraTitulo(aplicacion.Proyecto, caja).Aceptar(" NUEVO "); };
    espacio.Titulo();
    EXPECT_EQ(espacio.Estado().Abierta.Titulo, "NUEVO");
    EXPECT_THAT(Columna("EscaleraTDatos", "Titulo"), ElementsAre("NUEVO", "PRIMERA"));

    caja.Respuestas = {RespuestaSi, RespuestaSi};
    espacio.Lista().Eliminar();
    EXPECT_EQ(
        caja.Dicho(),
        "Escalera: Beta\n¿Esta Usted Seguro de Eliminar la Escalera del Proyecto?|Eliminar Escalera...");
    espacio.Lista().Eliminar();
    EXPECT_TRUE(vista.Filas.empty() && Columna("EscaleraT", "Nombre").empty());
    EXPECT_EQ(vista.Encabezado, "");
    EXPECT_FALSE(TieneMedidas(espacio.Estado().Abierta));
    vista.TituloNuevo = nullptr;
    espacio.Editar();  // with an empty list nothing is shown
    espacio.Titulo();
}

}  // namespace
}  // namespace trabex::prueba
