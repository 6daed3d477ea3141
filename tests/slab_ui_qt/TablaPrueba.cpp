// The entry table, typed into and pasted into as a spreadsheet.

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

#include "shell/qt/TablaDatos.h"

namespace trabex {

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
                  .Largo = 3}},
                {".", ","}, Avance::Abajo, nullptr) {
        tabla.PonerFilas(4);
        tabla.show();
        tabla.activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(&tabla));
        tabla.setFocus();
        tabla.IrA(1, 0);
    }
    /// Keys go where the focus is: to the cell's editor while there is one.
    void Teclas(const QString& texto) {
        for (const QChar c : texto) {
            QTest::keyClick(Destino(), c.toLatin1());
        }
    }
    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers mas = Qt::NoModifier) {
        QTest::keyClick(Destino(), tecla, mas);
    }
    QWidget* Destino() {
        for (auto* editor : tabla.viewport()->findChildren<QLineEdit*>()) {
            if (editor->isVisible()) return editor;
        }
        return &tabla;
    }
    QString Celda(int fila, int columna) const {
        return tabla.model()->index(fila - 1, columna).data().toString();
    }

    std::vector<double> numeros;
    std::vector<QString> textos;
    int rechazos = 0;
    TablaDatos tabla;
};

TEST_F(Tabla, SeEscribeYEnterSigue) {
    Teclas("5,25");
    Tecla(Qt::Key_Return);
    Teclas("4.5");
    Tecla(Qt::Key_Return);
    Teclas("x3a");  // letters do not enter a number
    Tecla(Qt::Key_Down);
    Tecla(Qt::Key_Return);
    EXPECT_EQ(numeros, (std::vector<double>{5.25, 4.5, 3, 0}));
    EXPECT_EQ(Celda(1, 0), "5,25");
    EXPECT_EQ(Celda(2, 0), "4,50");
    EXPECT_EQ(tabla.FilaActual(), 1);  // past the end it goes on in the next column that takes entries
    EXPECT_EQ(tabla.currentIndex().column(), 2);
    Teclas("abcd");
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(textos[0], "abc");
    EXPECT_EQ(tabla.FilaActual(), 2);
    Tecla(Qt::Key_Backtab);
    EXPECT_EQ(tabla.FilaActual(), 1);
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
    Teclas("1");
    Tecla(Qt::Key_Return);
    EXPECT_EQ(numeros[0], 7.001);
    Tecla(Qt::Key_Up);
    Tecla(Qt::Key_Delete);
    EXPECT_EQ(numeros[0], 0);
}

TEST_F(Tabla, LoRechazadoVuelveASuValorYNoSigue) {
    Teclas("101");
    Tecla(Qt::Key_Return);
    EXPECT_EQ(rechazos, 1);
    EXPECT_EQ(Celda(1, 0), "0,00");
    EXPECT_EQ(tabla.FilaActual(), 1);
    Teclas("-5");
    tabla.TerminarEdicion();
    EXPECT_EQ(numeros[0], -5);
}

TEST_F(Tabla, PegaColumnasYBloquesHastaDondeLlega) {
    QApplication::clipboard()->setText("5,2\r\n4.8\r\n1.234,5\r\n");
    tabla.Pegar();
    EXPECT_EQ(numeros, (std::vector<double>{5.2, 4.8, 0, 0}));  // the third is refused, and nothing after it
    EXPECT_EQ(rechazos, 1);
    EXPECT_EQ(tabla.FilaActual(), 3);

    QApplication::clipboard()->setText("1\tno\tA\n2\tno\tB\n3\tno\tC\n");
    tabla.IrA(3, 0);
    tabla.Pegar();
    EXPECT_EQ(numeros, (std::vector<double>{5.2, 4.8, 1, 2}));
    EXPECT_EQ(textos[3], "B");
    EXPECT_EQ(Celda(3, 1), "x");

    QApplication::clipboard()->setText("8\ncinco\n9");
    tabla.IrA(1, 0);
    tabla.Pegar();
    EXPECT_EQ(numeros[0], 8);
    EXPECT_EQ(numeros[1], 4.8);
    EXPECT_EQ(numeros[2], 1);
}

TEST_F(Tabla, CopiaElBloqueElegidoYUnValorLoLlenaTodo) {
    numeros = {1, 2.5, 3, 4};
    textos = {"a", "b", "c", "d"};
    tabla.Refrescar();
    tabla.selectAll();
    Tecla(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "1,00\tx\ta\n2,50\tx\tb\n3,00\tx\tc\n4,00\tx\td");
    tabla.selectColumn(0);
    QApplication::clipboard()->setText("6");
    Tecla(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(numeros, (std::vector<double>{6, 6, 6, 6}));
}

}  // namespace
}  // namespace trabex
