// What wiring can break: real widgets, pressed and typed into without a display.

#include "reports/planex/ui/qt/VentanaCuadroCAD.h"
#include "reports/planex/ui/qt/VentanaExportarCAD.h"
#include "support/ExportacionDePrueba.h"
#include "support/qt/Ventanas.h"

namespace trabex::prueba {

using namespace planex::ui;
using namespace planex::ui::qt;
namespace {

using VentanasCAD = Exportacion;

TEST_F(VentanasCAD, ElCuadroSoloEligeConSuPrimerBoton) {
    DestinoCAD destino;
    VentanaCuadroCAD cuadro(aplicacion, destino, nullptr);
    const auto botones = cuadro.findChildren<QAbstractButton*>();
    ASSERT_EQ(botones.size(), 2);
    botones[1]->click();
    EXPECT_FALSE(destino.Aceptado);
    EXPECT_EQ(destino.VersionCAD, Planex8);
    botones[0]->click();
    EXPECT_TRUE(destino.Aceptado);
    EXPECT_EQ(destino.VersionCAD, Planex2023);
}

TEST_F(VentanasCAD, LoMarcadoEnLaListaLlegaAlArchivo) {
    aplicacion.Proyecto.RegistrosProyecto.MoverA(2);
    const auto archivo = carpeta / "obra.cad";
    CopiarArchivo(carpetas.CaminoPrograma / "Imagen" / "ImagenCAD23.tbx", archivo);
    dialogos.Elegidos = {archivo};
    caja.Respuestas = {RespuestaSi};
    {
        VentanaExportarCAD ventana(aplicacion, servicios, Planex2023, nullptr);
        ventana.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
        auto* lista = ventana.findChild<QTableWidget*>();
        ASSERT_EQ(lista->rowCount(), 3);
        EXPECT_EQ(lista->currentRow(), 1);  // the slab selected in the workspace
        EXPECT_EQ(ventana.findChild<QLabel*>()->text(), "LOSA NERVADA: B NERVADA");
        lista->setFocus();
        QTest::keyClick(lista, Qt::Key_Space);
        QTest::keyClick(lista, Qt::Key_Down);
        QTest::keyClick(lista, Qt::Key_Space);
        QTest::keyClick(lista, Qt::Key_Space);
        for (auto* opcion : ventana.findChildren<QRadioButton*>()) {
            if (opcion->text().contains("Anexar")) opcion->click();
        }
        for (auto* boton : ventana.findChildren<QAbstractButton*>()) {
            if (boton->text() == " Aceptar ") boton->click();
        }
        EXPECT_FALSE(ventana.isVisible());
    }
    EXPECT_EQ(aplicacion.Proyecto.RegistrosProyecto.Posicion(), 2);
    const Recordset filas = Filas(archivo, "LosaDatos");
    ASSERT_EQ(filas.NumeroRegistros(), 1);
    EXPECT_EQ(filas.Texto("Nombre"), "B NERVADA");
}

}  // namespace
}  // namespace trabex::prueba
