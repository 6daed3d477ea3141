// The window of Markus levels, clicked and typed into.

#include "markus/ui/qt/VentanaMarcus.h"
#include "shell/qt/TablaDatos.h"
#include "support/EspacioGuiado.h"
#include "support/qt/Ventanas.h"

namespace trabex::prueba {

using namespace marcus::ui::qt;
namespace {

class VentanaDeMarkus : public testing::Test {
  protected:
    VentanaDeMarkus()
        : Programa(
              "INSERT INTO MarcusDatos VALUES ('Piso 1', 3), ('Techo', 0);"
              "INSERT INTO Marcus VALUES ('Piso 1', 1, 900, 1, 4, 4), ('Piso 1', 2, 900, 5, 4, 4),"
              " ('Piso 1', 3, 900, 8, 4, 4);"),
          Ventana(Programa.aplicacion, Programa.servicios,
                  {[](QWidget&) {},
                   [this](const QTableView& panos, const std::string& nivel, QWidget&) {
                       Impresa = nivel + ":" + std::to_string(panos.model()->rowCount());
                   }},
                  nullptr),
          Niveles(*Ventana.findChild<programa::qt::TablaDatos*>("Niveles")),
          Panos(*Ventana.findChild<programa::qt::TablaDatos*>("Panos")) {
        Ventana.show();
        static_cast<void>(QTest::qWaitForWindowActive(&Ventana));
    }
    static QString Celda(const programa::qt::TablaDatos& tabla, int fila, int columna) {
        return tabla.model()->index(fila - 1, columna - 1).data().toString();
    }
    QString Columna(int columna) const {
        QStringList celdas;
        for (int fila = 1; fila <= Panos.Filas(); ++fila) celdas += Celda(Panos, fila, columna);
        return celdas.join(' ');
    }
    /// The question for a block is answered as soon as it comes.
    void Responder(const QString& texto) {
        QTimer::singleShot(100, &Ventana, [texto] {
            auto* pregunta = dynamic_cast<QInputDialog*>(QApplication::activeModalWidget());
            if (pregunta == nullptr) return;
            pregunta->setTextValue(texto);
            pregunta->accept();
        });
        QTest::qWait(400);
    }

    ProgramaGuiado Programa;
    std::string Impresa;  // level and panels of the screen that was printed
    VentanaMarcus Ventana;
    programa::qt::TablaDatos& Niveles;
    programa::qt::TablaDatos& Panos;
};

TEST_F(VentanaDeMarkus, SeEscribeUnNivelSoloConElTeclado) {
    QTest::mouseClick(Niveles.viewport(), Qt::LeftButton, {},
                      Niveles.visualRect(Niveles.model()->index(1, 0)).center());
    EXPECT_EQ(Niveles.currentIndex().column(), 1);  // a name can't be entered
    EXPECT_EQ(Panos.Filas(), 0);
    Teclas("2\n900\t5\t4,5\t4.5\t1000\t7\t3\t");
    EXPECT_EQ(Niveles.FilaActual(), 2);
    EXPECT_EQ(Columna(5), "0,7143 0,0000");
    Teclas("6x\t");
    EXPECT_EQ(Celda(Panos, 2, 4), "6x");  // what is no number stays in sight, and nothing of it counts
    Ventana.Accion("ID_Salvar")->trigger();
    EXPECT_EQ(Programa.Columna("SELECT * FROM Marcus WHERE Nombre='Techo'", "LY").size(), 0U);
    QTest::keyClick(&Panos, Qt::Key_Escape);
    Teclas("6\t");
    EXPECT_EQ(Columna(7), "642,86 761,90");
    Ventana.Accion("ID_Salvar")->trigger();
    EXPECT_EQ(Programa.Columna("SELECT CAST(LY AS TEXT) AS LY FROM Marcus WHERE Nombre='Techo'", "LY"),
              (std::vector<std::string>{"4.5", "6.0"}));
    Teclas("\t");
    EXPECT_FALSE(Panos.model()->flags(Panos.model()->index(0, 4)).testFlag(Qt::ItemIsEditable));
}

TEST_F(VentanaDeMarkus, UnBloquePegadoSeDeshaceDeUnaVez) {
    Panos.setFocus();
    Panos.IrA(1, 0);
    QApplication::clipboard()->setText("1.000,5\t4\t4\t4\n1200\t\t3\t6\n");
    QTest::keyClick(&Panos, Qt::Key_V, Qt::ControlModifier);
    QTest::qWait(50);
    EXPECT_EQ(Columna(1), "1000,50 1200,00 900,00");
    EXPECT_EQ(Celda(Panos, 2, 2), "1");  // an empty case is the first one
    EXPECT_EQ(Columna(5), "0,2857 0,9412 0,6667");
    QApplication::clipboard()->setText("1\t2\nno\t4\n");
    QTest::keyClick(&Panos, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(Columna(1), "1000,50 1200,00 900,00");
    Ventana.Accion("ID_Deshacer")->trigger();
    EXPECT_EQ(Columna(1), "900,00 900,00 900,00");
    QTest::qWait(50);
    EXPECT_FALSE(Ventana.Accion("ID_Deshacer")->isEnabled());
}

TEST_F(VentanaDeMarkus, UnBloqueElegidoPreguntaPorSuNumero) {
    Panos.setFocus();
    Panos.IrA(2, 2);
    QTest::keyPress(&Panos, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyRelease(&Panos, Qt::Key_Shift);
    Responder("5,5");
    EXPECT_EQ(Columna(3), "4,00 5,50 5,50");
    EXPECT_TRUE(Panos.selectionModel()->selectedIndexes().isEmpty());
    const auto lugar = [this](int fila) { return Panos.visualRect(Panos.model()->index(fila, 0)).center(); };
    QTest::mousePress(Panos.viewport(), Qt::LeftButton, {}, lugar(0));
    QTest::mouseMove(Panos.viewport(), lugar(1));
    QTest::mouseMove(Panos.viewport(), lugar(2));
    QTest::mouseRelease(Panos.viewport(), Qt::LeftButton, {}, lugar(2));
    Responder("750");
    EXPECT_EQ(Columna(1), "750,00 750,00 750,00");
    Ventana.Accion("ID_ImprimirP")->trigger();
    EXPECT_EQ(Impresa, "Piso 1:3");
}

}  // namespace
}  // namespace trabex::prueba
