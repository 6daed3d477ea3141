// The entry table, typed into and pasted into as a spreadsheet.

#include "shell/qt/TablaDatos.h"
#include "support/qt/Ventanas.h"

namespace trabex::prueba {

using namespace programa::qt;
namespace {

class Tabla : public testing::Test {
  protected:
    Tabla()
        : numeros(4, 0.0),
          textos(4),
          tabla({{.Titulo = "Número",
                  .Numero = Distancia,
                  .Leer = [this](int f) { return numeros[static_cast<std::size_t>(f - 1)]; },
                  .Poner =
                      [this](int f, const QVariant& v) {
                          if (v.toDouble() > 100) return ++rechazos, false;
                          numeros[static_cast<std::size_t>(f - 1)] = v.toDouble();
                          return true;
                      }},
                 {.Titulo = "Fija", .Numero = std::nullopt, .Leer = [](int) { return QString("x"); }},
                 {.Titulo = "Texto",
                  .Numero = std::nullopt,
                  .Leer = [this](int f) { return textos[static_cast<std::size_t>(f - 1)]; },
                  .Poner =
                      [this](int f, const QVariant& v) {
                          textos[static_cast<std::size_t>(f - 1)] = v.toString();
                          return true;
                      },
                  .Siguiente = [](const QString& de) { return de + "a"; },
                  .Largo = 3}},
                {".", ","}, &marco),
          otro(&marco) {
        tabla.PonerFilas(4);
        auto* columna = new QVBoxLayout(&marco);
        columna->addWidget(&tabla);
        columna->addWidget(&otro);
        marco.show();
        marco.activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(&marco));
        tabla.setFocus();
        tabla.IrA(1, 0);
    }
    QString Celda(int fila, int columna) const {
        return tabla.model()->index(fila - 1, columna).data().toString();
    }

    std::vector<double> numeros;
    std::vector<QString> textos;
    int rechazos = 0;
    QWidget marco;
    TablaDatos tabla;
    QLineEdit otro;
};

/// Enter goes down, below where a run of Tab began; Tab goes right and, past the end, out.
TEST_F(Tabla, EnterBajaYTabVaALaDerechaYSale) {
    Teclas("5,25\n4.5\tabc\n");
    EXPECT_EQ(std::pair(tabla.FilaActual(), tabla.currentIndex().column()), std::pair(3, 0));
    EXPECT_EQ(numeros, (std::vector<double>{5.25, 4.5, 0, 0}));
    EXPECT_EQ(Celda(1, 0), "5,25");
    EXPECT_EQ(textos[1], "abc");
    tabla.IrA(4, 2);
    Tecla(Qt::Key_Return);
    EXPECT_EQ(tabla.FilaActual(), 4);
    EXPECT_TRUE(tabla.hasFocus());
    Tecla(Qt::Key_Tab);
    EXPECT_FALSE(tabla.EnMano());
    tabla.setFocus();
    tabla.IrA(1, 0);
    Teclas("9");
    Tecla(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_FALSE(tabla.EnMano());
    EXPECT_EQ(numeros[0], 9);
}

/// What is no number of its column stays in its cell with the focus and its reason, and is not stored.
TEST_F(Tabla, LoQueNoEsNumeroQuedaALaVistaYNoSale) {
    numeros[0] = 7;
    tabla.Refrescar();
    for (const auto& [texto, columna, motivo] : {std::tuple{"x3a", 0, "No es un número."},
                                                 {"1.250", 0, "Puede leerse 1250 o 1,25"},
                                                 {"1e308", 0, "No es un número."},
                                                 {"abcd", 2, "No caben más de 3 letras."}}) {
        for (const Qt::Key salida : {Qt::Key_Return, Qt::Key_Tab, Qt::Key_Down}) {
            tabla.IrA(1, columna);
            Teclas(texto);
            Tecla(salida);
            EXPECT_EQ(Celda(1, columna), texto);
            EXPECT_TRUE(tabla.Motivo().startsWith(motivo)) << tabla.Motivo().toStdString();
            EXPECT_FALSE(EntradasEnOrden(&marco));
            tabla.IrA(3, columna);
            QTest::qWait(1);
            EXPECT_EQ(tabla.FilaActual(), 1);
            EXPECT_TRUE(tabla.hasFocus());
            EXPECT_EQ(numeros[0], 7);
            Tecla(Qt::Key_Escape);
            EXPECT_EQ(Celda(1, columna), columna == 0 ? "7,00" : "");
            EXPECT_TRUE(EntradasEnOrden(&marco));
        }
    }
    tabla.IrA(1, 0);
    Teclas("7x\n");
    Teclas("8");
    QTest::qWait(50);  // the focus is in the cell, and stays there
    Teclas("5\n");
    EXPECT_EQ(numeros[0], 85);
}

TEST_F(Tabla, EscapeDejaLaCeldaYF2LaEditaConDeshacer) {
    numeros[0] = 7;
    tabla.Refrescar();
    Teclas("9");
    Tecla(Qt::Key_Escape);
    EXPECT_EQ(numeros[0], 7);
    Tecla(Qt::Key_F2);
    Tecla(Qt::Key_End);
    Teclas("5");
    Tecla(Qt::Key_Z, Qt::ControlModifier);
    Teclas("1\n");
    EXPECT_EQ(numeros[0], 7.001);
    Tecla(Qt::Key_Up);
    Tecla(Qt::Key_Delete);
    EXPECT_EQ(numeros[0], 0);
}

TEST_F(Tabla, LoRechazadoVuelveASuValorYNoSigue) {
    Teclas("101\n");
    EXPECT_EQ(rechazos, 1);
    EXPECT_EQ(Celda(1, 0), "0,00");
    EXPECT_EQ(tabla.FilaActual(), 1);
    Teclas("-5");
    tabla.Terminar();
    EXPECT_EQ(numeros[0], -5);
}

/// A block goes in whole or not at all, says why, and is taken back whole.
TEST_F(Tabla, UnBloqueEntraEnteroONoEntra) {
    const std::vector<double> vacia(4, 0.0);
    for (const auto& [bloque, fila, esperados, motivo] :
         {std::tuple<const char*, int, std::vector<double>, const char*>{"5,2\r\n4.8\r\n1.234,5\r\n", 1,
                                                                         vacia, ""},  // refused by its column
          {"8\ncinco\n9", 1, vacia, "«cinco»: No es un número."},
          {"8\n1.250\n9", 1, vacia, "«1.250»: Puede leerse 1250 o 1,25"},
          {"1\tno\tA\n2\tno\tLarga", 1, vacia, "«Larga»: No caben más de 3 letras."},
          {"1\n2\n3", 3, vacia, "El bloque tiene 3 filas y desde aquí caben 2."},
          {"1\tno\tA\tsobra", 1, vacia, "El bloque tiene más columnas"},
          {"1\tno\tA\n2,5\tno\tB\n", 3, {0, 0, 1, 2.5}, ""}}) {
        QApplication::clipboard()->setText(bloque);
        tabla.IrA(fila, 0);
        tabla.Pegar();
        EXPECT_EQ(numeros, esperados) << bloque;
        EXPECT_TRUE(QString(QToolTip::text() + " ").startsWith(motivo))
            << bloque << QToolTip::text().toStdString();
        EXPECT_EQ(Celda(1, 1), "x");
    }
    EXPECT_EQ(textos[3], "B");
    EXPECT_EQ(rechazos, 1);
    Tecla(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(numeros, vacia);
    EXPECT_EQ(textos[3], "");
    Tecla(Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(numeros[3], 2.5);
    tabla.PonerFilas(3);
    Tecla(Qt::Key_Z, Qt::ControlModifier);  // a row that is gone takes its undoing along
    EXPECT_EQ(numeros[2], 1);
}

TEST_F(Tabla, SeRellenaHaciaAbajoConLaSerie) {
    Teclas("5");
    Tecla(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(numeros, (std::vector<double>{5, 5, 5, 5}));
    tabla.IrA(2, 2);
    Teclas("a");
    Tecla(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(textos, (std::vector<QString>{"", "a", "aa", "aaa"}));
    Tecla(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(textos, (std::vector<QString>{"", "a", "", ""}));
}

TEST_F(Tabla, SinElFocoNingunaCeldaSeVeActiva) {
    const auto color = [&] {
        const QRect celda = tabla.visualRect(tabla.currentIndex());
        return tabla.viewport()->grab().toImage().pixelColor(celda.left() + 3, celda.center().y());
    };
    const QColor activo = tabla.palette().color(QPalette::Highlight);
    EXPECT_NEAR(color().blue(), activo.blue(), 3);
    EXPECT_NEAR(color().red(), activo.red(), 3);
    otro.setFocus();
    EXPECT_EQ(color(), tabla.palette().color(QPalette::Base));
}

TEST_F(Tabla, CopiaElBloqueElegidoYUnValorLoLlenaTodo) {
    numeros = {1, 2.5, 3, 4};
    textos = {"a", "b", "c", "d"};
    tabla.Refrescar();
    tabla.selectAll();
    Tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "1,00\tx\ta\n2,50\tx\tb\n3,00\tx\tc\n4,00\tx\td");
    tabla.selectionModel()->select({tabla.model()->index(0, 0), tabla.model()->index(3, 0)},
                                   QItemSelectionModel::ClearAndSelect);
    QApplication::clipboard()->setText("6");
    Tecla(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(numeros, (std::vector<double>{6, 6, 6, 6}));
}

}  // namespace
}  // namespace trabex::prueba
