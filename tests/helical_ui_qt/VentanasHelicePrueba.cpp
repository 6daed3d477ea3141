// The helix's windows through their real widgets.

#include "drawing/qt/WidgetLienzo.h"
#include "helical/ui/qt/VentanaEscaleraH.h"
#include "reports/ui/qt/VistaDeHoja.h"
#include "support/EspacioGuiado.h"
#include "support/qt/Ventanas.h"

namespace trabex::prueba {

using namespace helices::ui::qt;
namespace {

using dibujo::qt::WidgetLienzo;

struct VentanasHelice : testing::Test, ProgramaGuiado {
    VentanasHelice()
        : ProgramaGuiado(
              "INSERT INTO EscaleraHDatos VALUES ('A', ''), ('B', '');"
              "INSERT INTO EscaleraH VALUES ('A', 1.5, 0.15, 3, 2.5, 260, 1500, 7);") {
        aplicacion.SeparadoresLocales = {".", ","};
    }
};

TEST_F(VentanasHelice, LasPaginasSeCopianYNoSonHojasDelDibujo) {
    VentanaEscaleraH ventana(aplicacion, servicios, {}, nullptr);
    ventana.show();
    auto* hojas = ventana.findChild<QTabBar*>();
    auto* fuerzas = ventana.findChild<reportes::ui::qt::VistaDeHoja*>("Solicitaciones");
    const auto* lienzo = ventana.findChild<WidgetLienzo*>("Lienzo");
    EXPECT_TRUE(lienzo->isVisible() && ventana.Accion("ID_ZoomIN")->isEnabled());
    EXPECT_FALSE(ventana.Accion("ID_Exportar")->isEnabled());  // none of its operations was given
    hojas->setCurrentIndex(1);
    EXPECT_TRUE(fuerzas->isVisible() && !lienzo->isVisible());
    for (const char* clave : {"ID_ZoomIN", "ID_GirarV", "ID_Cuadricula"})
        EXPECT_FALSE(ventana.Accion(clave)->isEnabled()) << clave;

    ASSERT_EQ(fuerzas->model()->rowCount(), 19 + 19 + 3 + 5);
    EXPECT_EQ(fuerzas->columnSpan(0, 0), 9);
    EXPECT_EQ(fuerzas->model()->index(1, 1).data().toString(), "-9.330,21");
    fuerzas->selectionModel()->select({fuerzas->model()->index(0, 0), fuerzas->model()->index(1, 2)},
                                      QItemSelectionModel::ClearAndSelect);
    fuerzas->findChild<QAction*>("Copiar")->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->text(),
              "APOYO SUPERIOR DE LA ESCALERA DE LA ESCALERA HELICOIDAL\t\t\n130\t-9330,21\t-6333,65");
    fuerzas->findChild<QAction*>("CopiarTodo")->trigger();
    const QStringList lineas = QGuiApplication::clipboard()->text().split('\n');
    ASSERT_EQ(lineas.size(), 47);
    EXPECT_TRUE(lineas[0].startsWith("Progresiva grados\tNormal N (kgf)\tCortes QX (kgf)"));

    EXPECT_FALSE(ventana.Accion("ID_Anterior")->isEnabled());
    ventana.Accion("ID_Siguiente")->trigger();
    EXPECT_EQ(ventana.findChild<QLabel*>("Encabezado")->text(), "ESCALERA: B");
    EXPECT_EQ(fuerzas->model()->rowCount(), 0);
    EXPECT_TRUE(ventana.Accion("ID_Anterior")->isEnabled() && !ventana.Accion("ID_Siguiente")->isEnabled());
    caja.Respuestas = {RespuestaSi, RespuestaSi};
    ventana.Accion("ID_Eliminar")->trigger();
    ventana.Accion("ID_Eliminar")->trigger();
    for (const char* clave : {"ID_Anterior", "ID_Siguiente", "ID_Editar", "ID_Titulo"})
        EXPECT_FALSE(ventana.Accion(clave)->isEnabled()) << clave;
}

TEST_F(VentanasHelice, ElGiroTomaLasFlechasYAvanzaSolo) {
    VentanaEscaleraH ventana(aplicacion, servicios, {}, nullptr);
    ventana.show();
    const dibujo::helice::HojaHelice& hoja = ventana.Operaciones().Estado().Hoja;
    auto* lienzo = ventana.findChild<WidgetLienzo*>("Lienzo");
    QTest::keyClick(lienzo, Qt::Key_Left);
    EXPECT_EQ(hoja.Vista.PanX, 10);
    const QImage antes = lienzo->Imagen();
    ventana.Accion("ID_GirarH")->trigger();
    EXPECT_TRUE(ventana.Accion("ID_GirarH")->isChecked());
    EXPECT_TRUE(QTest::qWaitFor([&] { return hoja.ElGiro.GiroHorizontal >= 5; }));
    EXPECT_NE(lienzo->Imagen(), antes);
    ventana.Accion("ID_GirarV")->trigger();
    EXPECT_FALSE(ventana.Accion("ID_GirarH")->isChecked());
    QTest::keyClick(lienzo, Qt::Key_Up);
    EXPECT_EQ(hoja.Vista.PanX, 10);
    EXPECT_GE(hoja.ElGiro.GiroVertical, 5);
    ventana.Accion("ID_GirarN")->trigger();
    EXPECT_FALSE(ventana.Accion("ID_GirarV")->isChecked());
    EXPECT_EQ(hoja.ElGiro.GiroVertical + hoja.ElGiro.GiroHorizontal, 0);
}

}  // namespace
}  // namespace trabex::prueba
