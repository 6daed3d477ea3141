// What wiring can break: the windows of load analyses with real widgets, down to the file.

#include "loads/ui/qt/VentanaAnalisisCargaModificar.h"
#include "loads/ui/qt/VentanaListaAnalisis.h"
#include "reports/ui/qt/SalidaDelPrograma.h"
#include "shell/qt/TablaDatos.h"
#include "support/CargasDePrueba.h"
#include "support/qt/Ventanas.h"

namespace trabex::prueba {

using namespace cargas;
using namespace cargas::ui;
using namespace cargas::ui::qt;
using programa::qt::TablaDatos;
namespace {

class VentanasConWidgets : public CargasDePrueba {
  protected:
    VentanasConWidgets() : entorno_(salida_.Entorno(aplicacion, servicios)) {
        aplicacion.SeparadoresLocales = {".", ","};
    }
    static void Mostrar(QWidget& ventana) {
        ventana.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&ventana));
    }
    reportes::ui::qt::SalidaDelPrograma salida_;
    reportes::ui::EntornoSalida entorno_;
};

TEST_F(VentanasConWidgets, LasCeldasSoloSeModificanConSuOpcion) {
    ListaAnalisis operaciones(aplicacion, servicios, AnalisisCompartido, Azar());
    VentanaListaAnalisis ventana(entorno_, operaciones, nullptr);
    Mostrar(ventana);
    auto* tabla = ventana.findChild<TablaDatos*>();
    const auto cargas = [&] {
        const Recordset lista = EnArchivo(Ambito::Compartido, TablasDe(Ambito::Compartido).Lista);
        return lista.Doble("Carga");
    };
    const double antes = cargas();
    const auto escribir = [tabla] {
        tabla->setFocus();
        tabla->IrA(1, 1);
        Teclas("123,5\t");  // Enter would open the window of the one in sight
    };
    escribir();
    tabla->Borrar();
    EXPECT_EQ(cargas(), antes);
    ventana.findChild<QCheckBox*>("ModificarCeldas")->click();
    escribir();
    EXPECT_EQ(cargas(), 123.5);
    tabla->IrA(3, 0);
    EXPECT_EQ(operaciones.Fila(), 3);
}

TEST_F(VentanasConWidgets, LoQueOtroProgramaCambiaSeLeeAlVenirAlFrente) {
    ListaAnalisis operaciones(aplicacion, servicios, AnalisisCompartido, Azar());
    VentanaListaAnalisis ventana(entorno_, operaciones, nullptr);
    ventana.setModal(true);
    Mostrar(ventana);
    auto* tabla = ventana.findChild<TablaDatos*>();
    ventana.findChild<QCheckBox*>("ModificarCeldas")->click();
    const auto cargas = [&](const char* carga) {
        AbrirConexion(otra_, Compartido());
        otra_.Ejecutar(std::string("UPDATE Generales SET Carga = ") + carga);
        QEvent venir(QEvent::WindowActivate);
        QApplication::sendEvent(&ventana, &venir);
        QTest::qWait(50);
        return tabla->model()->index(2, 1).data().toString();
    };
    tabla->setFocus();
    tabla->IrA(3, 1);
    EXPECT_EQ(cargas("777"), "777");
    EXPECT_EQ(operaciones.Fila(), 3);
    EXPECT_TRUE(ventana.findChild<QLabel*>("Pie")->text().endsWith("se leyó de nuevo)"));
    QTest::keyClicks(tabla, "5");
    EXPECT_EQ(cargas("888"), "777");  // not over what is being typed
    EXPECT_EQ(tabla->findChild<QLineEdit*>()->text(), "5");
}

TEST_F(VentanasConWidgets, NadaDeLoEscritoSePierdeAlDesplazarNiAlCerrar) {
    ListaAnalisis operaciones(aplicacion, servicios, AnalisisDeProyecto, Azar());
    VentanaListaAnalisis lista(entorno_, operaciones, nullptr);
    double total = 0;
    AnalisisCargaModificar edicion(
        {Ambito::Proyecto, aplicacion.Proyecto.ConexionProyecto, aplicacion.Proyecto.RegistrosProyecto, otra_,
         [&](double carga) { total = carga; }},
        servicios);
    VentanaAnalisisCargaModificar ventana(entorno_, AnalisisDeProyecto, edicion, nullptr);
    Mostrar(ventana);
    auto* long1 = ventana.findChild<QLineEdit*>("Long1");
    auto* deslizador = ventana.findChild<QScrollBar*>();
    const auto guardado = [&] { return EnArchivo(Ambito::Proyecto, 2741); };
    const double cp = guardado().CP;

    ventana.findChild<QAction*>("ID_CrearLinea")->trigger();
    auto* tabla = ventana.findChild<TablaDatos*>();
    tabla->IrA(tabla->Filas(), 1);
    tabla->setFocus();
    Teclas("40,6");  // still in its editor
    caja.Respuestas = {programa::RespuestaSi};
    deslizador->setValue(2);
    EXPECT_EQ(guardado().CP, cp + 41);
    EXPECT_EQ(total, cp + 41 + 175);
    EXPECT_EQ(ventana.findChild<QLabel*>("DescripcionAnalisis")->text(), "ENTREPISO DE OFICINAS");

    deslizador->setValue(1);
    EXPECT_EQ(caja.Mensajes.size(), 1U);  // nothing changed, nothing asked
    Escribir(long1, "1.250,4");
    ventana.findChild<QAction*>("ID_Salvar")->trigger();
    EXPECT_EQ(guardado().CV, 1250);
    EXPECT_FALSE(ventana.isWindowModified());

    // What is no weight, or may be two, stays in sight and holds the window; given up, what stood counts
    // again.
    for (const char* mala : {"-", "3x", "1.250"}) {
        Escribir(long1, mala);
        deslizador->setValue(3);
        ventana.reject();
        EXPECT_EQ(deslizador->value(), 1);
        EXPECT_TRUE(ventana.isVisible());
        EXPECT_EQ(long1->text(), mala);
        QTest::keyClick(long1, Qt::Key_Escape);
        EXPECT_EQ(ventana.findChild<QLabel*>("SumaTotal")->text(),
                  QString::fromStdString(Formato(cp + 41 + 1250, "#,##0", {".", ","})));
    }
    // A refused save keeps the changes.
    QTest::keyClicks(long1, "-7");
    otra_.Ejecutar("DELETE * FROM AnalisisCargaG WHERE ID=2741");  // another program
    caja.Respuestas = {programa::RespuestaSi};
    ventana.reject();
    EXPECT_EQ(caja.Mensajes.back().Texto.find("Error Número: "), 0U);
    EXPECT_TRUE(ventana.isVisible());
    EXPECT_EQ(ventana.findChild<QLabel*>("SumaTotal")->text(), QString::number(cp + 41 - 7));
    ventana.reject();
    EXPECT_FALSE(ventana.isVisible());
}

}  // namespace
}  // namespace trabex::prueba
