// The windows of self-supporting stairs through their real widgets, down to the file.

#include <gmock/gmock.h>

#include "drawing/qt/WidgetLienzo.h"
#include "shell/qt/CampoNumero.h"
#include "stairs/ui/qt/VentanaEscaleraT.h"
#include "support/EspacioGuiado.h"
#include "support/qt/Ventanas.h"

namespace trabex::prueba {

using namespace escaleras::ui::qt;
namespace {

void Escribir(QWidget& ventana, int campo, const char* texto) {
    prueba::Escribir(ventana.findChildren<qt::CampoNumero*>().at(campo), texto);
    QTest::keyClick(ventana.findChildren<qt::CampoNumero*>().at(campo), Qt::Key_Tab);
}

void PulsarElPrincipal(QWidget& ventana) {
    for (auto* boton : ventana.findChildren<QPushButton*>())
        if (boton->isDefault()) return boton->click();
    ADD_FAILURE() << ventana.windowTitle().toStdString();
}

struct VentanasEscalera : testing::Test, ProgramaGuiado {
    VentanasEscalera()
        : ProgramaGuiado(
              "INSERT INTO EscaleraTDatos VALUES ('A', 'UNA'), ('B', 'SIN DATOS'), ('C', '');"
              "INSERT INTO EscaleraT VALUES ('A', 2.4, 1.2, 3, 0.15, 0.15, 1200, 1000, 600),"
              " ('C', 4, 1, 1.2, 0.3, 0.08, 9000, 9000, 9000);") {
        ventana.emplace(aplicacion, servicios, OperacionesDeEscaleras{}, nullptr);
        ventana->show();
        lista = ventana->findChild<QListWidget*>("Lista");
    }
    /// Triggers a command, and runs `accion` on the modal window that it opens.
    template <class Accion>
    void Abrir(const char* clave, Accion accion) {
        bool abierta = false;
        QTimer::singleShot(0, qApp, [&] {
            abierta = true;
            accion(static_cast<QDialog&>(*QApplication::activeModalWidget()));
        });
        ventana->Accion(clave)->trigger();
        EXPECT_TRUE(abierta) << clave;
    }
    double Guardado(const char* columna) const {
        Recordset filas;
        AbrirRecordset(const_cast<Conexion&>(aplicacion.Proyecto.ConexionProyecto), filas,
                       "SELECT * FROM EscaleraT WHERE Nombre='B'");
        return filas.NumeroRegistros() == 1 ? filas.Doble(columna) : -1;
    }
    QString Encabezado() const { return ventana->findChild<QLabel*>("Encabezado")->text(); }

    std::optional<VentanaEscaleraT> ventana;
    QListWidget* lista = nullptr;
};

TEST_F(VentanasEscalera, LoEscritoSeVeSeDescartaYLlegaAlArchivo) {
    EXPECT_TRUE(lista->item(0)->icon().isNull());
    EXPECT_FALSE(lista->item(2)->icon().isNull());  // it fails in shear, and is not selected
    lista->setCurrentRow(1);
    EXPECT_EQ(Encabezado(), "ESCALERA: B");
    Abrir("ID_Editar", [&](QDialog& datos) {
        auto* boceto = datos.findChild<dibujo::qt::WidgetLienzo*>();
        const QImage vacio = boceto->grab().toImage();
        const auto campos = datos.findChildren<qt::CampoNumero*>();
        const char* const valores[]{"2,70", "1.5", "3", "0,2", "0", "2076", "0", "0"};
        for (int i = 0; i < 8; ++i) Escribir(datos, i, valores[i]);
        EXPECT_NE(boceto->grab().toImage(), vacio);
        PulsarElPrincipal(datos);  // e2 is 0
        EXPECT_EQ(datos.focusWidget(), campos[4]);
        EXPECT_TRUE(caja.Mensajes.empty());
        EXPECT_EQ(Guardado("L"), -1);
        Escribir(datos, 4, "0,25");
        PulsarElPrincipal(datos);
        EXPECT_EQ(Guardado("Hd"), 0.25);
        for (const char* boton : {"Escalera Anterior", "Siguiente Escalera"}) {
            Escribir(datos, 0, "9");
            datos.findChild<QPushButton*>(boton)->click();
            EXPECT_EQ(campos[0]->Valor(), 2.7) << boton;
        }
        Escribir(datos, 5, "2000");
        caja.Respuestas = {RespuestaCancelar, RespuestaSi};
        datos.reject();
        EXPECT_TRUE(datos.isVisible());
        EXPECT_EQ(caja.Mensajes[0].Texto, "B\n¿Desea Salvar las Modificaciones?");
        datos.reject();
        EXPECT_FALSE(datos.isVisible());
    });
    EXPECT_NEAR(ventana->Operaciones().Estado().Resultados.ReaccionVertical, 2000 * 2.7, 1e-9);
    lista->setCurrentRow(0);
    lista->setCurrentRow(1);  // read again
    EXPECT_EQ(ventana->Operaciones().Estado().Abierta.WT, 2000);
}

TEST_F(VentanasEscalera, CadaPestanaMuestraSuHojaEntera) {
    const dibujo::escalera::HojaEscalera& hoja = ventana->Operaciones().Estado().Hoja;
    auto* pestanas = ventana->findChild<QTabBar*>();
    for (const int cual : {1, 2, 3, 0}) {
        ventana->Accion("ID_ZoomIN")->trigger();
        EXPECT_NE(hoja.Vista.Zoom, 1);
        pestanas->setCurrentIndex(cual);
        EXPECT_EQ(hoja.Vista.Zoom, 1);
        EXPECT_EQ(hoja.VistaActual, cual);
    }
}

TEST_F(VentanasEscalera, LosDatosGeneralesQuedanAbiertosMientrasNoSeGuardan) {
    lista->setCurrentRow(1);
    Abrir("ID_Generales", [&](QDialog& generales) {
        Escribir(generales, 1, "32768");
        PulsarElPrincipal(generales);
        EXPECT_TRUE(generales.isVisible());
        EXPECT_EQ(caja.Mensajes.back().Texto.find("Error Número: 6"), 0U);
        Escribir(generales, 1, "2800");
        Escribir(generales, 3, "0");
        PulsarElPrincipal(generales);
        EXPECT_EQ(generales.focusWidget(), generales.findChildren<qt::CampoNumero*>()[3]);
        Escribir(generales, 3, "9");
        aplicacion.Proyecto.ConexionProyecto.Cerrar();
        PulsarElPrincipal(generales);
        EXPECT_TRUE(generales.isVisible());
        EXPECT_EQ(caja.Mensajes.back().Encabezado, "Error Inesperado...");
        EXPECT_EQ(aplicacion.Generales.FS, 1.55);
        AbrirConexion(aplicacion.Proyecto.ConexionProyecto, aplicacion.ArchivoProyecto);
        PulsarElPrincipal(generales);
        EXPECT_FALSE(generales.isVisible());
    });
    EXPECT_EQ(aplicacion.Generales.FS, 9);
    EXPECT_FALSE(lista->item(0)->icon().isNull());  // with that factor every landing fails
}

TEST_F(VentanasEscalera, SeCreaSeTitulaYSeElimina) {
    lista->setCurrentRow(2);
    Abrir("ID_Nueva", [&](QDialog& nueva) {
        EXPECT_EQ(nueva.windowTitle(), "CREAR NUEVA ESCALERA");
        auto* nombre = nueva.findChild<QLineEdit*>("Nombre");
        for (const char* texto : {"", " b "}) {  // none, and one that is taken
            nombre->setText(texto);
            PulsarElPrincipal(nueva);
            EXPECT_EQ(nueva.focusWidget(), nombre);
        }
        EXPECT_EQ(caja.Mensajes.size(), 1U);
        EXPECT_EQ(caja.Dicho(),
                  "La Escalera: b\nLa Escalera ya Existe en el Proyecto...|Creando Nueva Escalera...");
        nombre->setText(" D ");
        EnLaVentana([](QDialog& datos) {
            EXPECT_EQ(datos.findChild<QLabel*>("Nombre")->text(), "ESCALERA: D");
            EXPECT_EQ(datos.findChildren<qt::CampoNumero*>()[5]->Valor(), 2076);
            datos.close();
        });
        PulsarElPrincipal(nueva);
    });
    EXPECT_EQ(lista->currentRow(), 3);
    EXPECT_EQ(Encabezado(), "ESCALERA: D");
    EXPECT_EQ(ventana->Operaciones().Estado().Abierta.Nombre, "D");
    EXPECT_EQ(ventana->Operaciones().Estado().Abierta.L, 4);  // left without saving: the one before
    EXPECT_TRUE(lista->item(3)->icon().isNull());             // which fails, and the new one doesn't
    EXPECT_THAT(Columna("EscaleraTDatos", "Nombre"), testing::ElementsAre("A", "B", "C", "D"));
    Abrir("ID_Titulo", [](QDialog& titulo) {
        titulo.findChild<QLineEdit*>("Titulo")->setText(" CUARTA ");
        PulsarElPrincipal(titulo);
    });
    EXPECT_EQ(ventana->Operaciones().Estado().Abierta.Titulo, "CUARTA");
    caja.Respuestas.assign(4, RespuestaSi);
    while (lista->count() > 0) ventana->Accion("ID_Eliminar")->trigger();
    EXPECT_EQ(Encabezado(), "");
    for (const char* clave : {"ID_Editar", "ID_Renombrar", "ID_Titulo", "ID_Eliminar", "ID_ExportarG"})
        EXPECT_FALSE(ventana->Accion(clave)->isEnabled()) << clave;
    EXPECT_TRUE(ventana->Accion("ID_Nueva")->isEnabled());
}

}  // namespace
}  // namespace trabex::prueba
