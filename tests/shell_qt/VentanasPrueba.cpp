// What wiring can break: real widgets, pressed and typed into without a display.

#include "base/Archivos.h"
#include "shell/Arranque.h"
#include "shell/Comandos.h"
#include "shell/qt/CajaMensajesQt.h"
#include "shell/qt/ComunVentanas.h"
#include "shell/qt/VentanaCompactar.h"
#include "shell/qt/VentanaConfigurar.h"
#include "shell/qt/VentanaDatosProyecto.h"
#include "shell/qt/VentanaMenuPrincipal.h"
#include "slab/ui/qt/VentanaLosaGeneral.h"
#include "store/proyecto/TablaProyecto.h"
#include "support/ProyectoDePrueba.h"
#include "support/ShellGuiado.h"
#include "support/qt/Ventanas.h"

namespace trabex::prueba {

using namespace losas::ui::qt;
using namespace programa::qt;
namespace {

class Ventanas : public testing::Test, protected Maquina {
  protected:
    Ventanas() {
        QPixmap mapa(40, 30);
        mapa.fill(Qt::gray);
        mapa.save(Q((carpeta / "programa" / "Imagen" / "TapizTBX.jpg").string()));
        PrepararArranque(plataforma, carpetas, aplicacion);
        aplicacion.ArchivoProyecto = carpetas.Proyectos() / "obra.los";
        aplicacion.NombreProyecto = "obra.los";
        CrearBaseDatos(aplicacion.ArchivoProyecto, EsquemaDeProyecto());
    }
};

TEST_F(Ventanas, LaCajaRespondePorBotonYPorEscape) {
    using enum BotonesCaja;
    const std::tuple<BotonesCaja, int, const char*, int, bool> casos[]{
        {Aceptar, Qt::Key_Escape, "", 0, true},
        {SiNo, Qt::Key_Escape, "", 0, false},
        {SiNoCancelar, Qt::Key_Escape, "", 2, true},
        {SiNo, 0, "Sí", 1, true},
        {SiNo, 0, "No", 0, true},
        {SiNo, Qt::Key_S, "", 1, true},
        {SiNo, Qt::Key_N, "", 0, true},
        {SiNo, Qt::Key_C, "", 0, false},
        {SiNoCancelar, Qt::Key_C, "", 2, true},
        {SiNoCancelar, Qt::Key_Return, "", 0, true}};
    for (const auto& [botones, tecla, boton, respuesta, cierra] : casos) {
        Mensaje mensaje = Pregunta("Una línea\nOtra línea", "Encabezado...");
        mensaje.Botones = botones;
        mensaje.PorDefecto = 1;
        VentanaMensaje ventana(mensaje, nullptr);
        ventana.show();
        if (tecla != 0)
            QTest::keyClick(&ventana, static_cast<Qt::Key>(tecla));
        else
            Pulsar(ventana, boton);
        EXPECT_EQ(ventana.isVisible(), !cierra);
        EXPECT_EQ(ventana.Respuesta(), respuesta);
        EXPECT_GE(ventana.width(), botones == BotonesCaja::Aceptar ? 260 : 286);
    }
}

TEST_F(Ventanas, ElMenuMandaLosComandos) {
    int abiertos = 0;
    const auto abrir = [&](Aplicacion& suya, const Servicios&, QWidget* padre) {
        ++abiertos;
        EXPECT_EQ(suya.NombreProyecto, "otra.los");
        EXPECT_NE(padre, nullptr);
    };
    VentanaMenuPrincipal menu(aplicacion, servicios, {{"ID_LosasD", abrir, "02-losas"}});
    EXPECT_EQ(menu.windowTitle(), "Trabex 2024   Proyecto:[]");
    for (const Comando& comando : Comandos) {
        ASSERT_NE(menu.Accion(comando.Clave), nullptr);
        EXPECT_FALSE(menu.Accion(comando.Clave)->icon().isNull());
        EXPECT_EQ(menu.Accion(comando.Clave)->isEnabled(),
                  comando.Clave == "ID_LosasD" ||
                      (comando.Ejecuta == Orden::Propia && comando.Clave != "ID_SalvarComo"));
    }
    dialogos.Elegidos = {carpeta / "otra.los"};
    menu.Accion("ID_Abrir")->trigger();
    EXPECT_EQ(menu.windowTitle(), "Trabex 2024   Proyecto:[otra.los]");
    EXPECT_TRUE(menu.Accion("ID_SalvarComo")->isEnabled());
    menu.Accion("ID_LosasD")->trigger();
    EXPECT_EQ(abiertos, 1);
    menu.Accion("ID_Explorador")->trigger();
    EXPECT_EQ(plataforma.Abiertos.size(), 1U);
}

/// A project comes by the menu of recent ones and by being dropped; the last one heads the menu.
TEST_F(Ventanas, LosProyectosRecientesYLosSoltadosSeAbren) {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, Q(carpeta.Camino().string()));
    QCoreApplication::setOrganizationName("prueba");
    VentanaMenuPrincipal menu(aplicacion, servicios, {});
    const auto soltar = [&](const QString& camino) {
        QMimeData datos;
        datos.setUrls({QUrl::fromLocalFile(camino)});
        QDragEnterEvent entra({5, 5}, Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&menu, &entra);
        QDropEvent evento(QPointF(5, 5), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&menu, &evento);
    };
    const QString obra = Q(TextoDeCamino(aplicacion.ArchivoProyecto));
    QFile::copy(obra, Q((carpeta / "otra.LOS").string()));
    soltar(obra);
    soltar(Q((carpeta / "otra.LOS").string()));
    soltar(Q((carpeta / "foto.jpg").string()));
    EXPECT_EQ(menu.windowTitle(), "Trabex 2024   Proyecto:[otra.LOS]");
    QMenu* recientes = nullptr;
    for (QMenu* candidato : menu.findChildren<QMenu*>())
        if (candidato->title().contains("Recientes")) recientes = candidato;
    ASSERT_NE(recientes, nullptr);
    ASSERT_EQ(recientes->actions().size(), 2);
    recientes->actions()[1]->trigger();
    EXPECT_EQ(menu.windowTitle(), "Trabex 2024   Proyecto:[obra.los]");
    EXPECT_TRUE(recientes->actions()[0]->text().endsWith("obra.los"));
    QFile::remove(obra);
    recientes->actions()[0]->trigger();
    EXPECT_EQ(caja.Mensajes.back().Texto, "Error Número: 53\nNo se encontró el archivo");
    QCoreApplication::setOrganizationName({});
}

TEST_F(Ventanas, LosDatosTecleadosLleganAlArchivo) {
    VentanaDatosProyecto ventana(aplicacion, caja, nullptr);
    ventana.show();
    EXPECT_EQ(ventana.findChild<QLineEdit*>("Calculista")->text(), "ING. NÚÑEZ");
    auto* comentario = ventana.findChild<QPlainTextEdit*>("Comentario");
    comentario->setPlainText(QString(250, 'a'));
    comentario->moveCursor(QTextCursor::End);
    QTest::keyClicks(comentario, "bcdefghij");  // past the column's 255
    auto* proyecto = ventana.findChild<QLineEdit*>("Proyecto");
    const QString largo(121, 'P');
    for (const bool cabe : {false, true}) {
        proyecto->setText(cabe ? "EDIFICIO 1" : largo);
        Pulsar(ventana, "Salvar");
        EXPECT_TRUE(ventana.isVisible());  // nothing is cut: the first that does not fit stays and is told
        EXPECT_EQ(ventana.focusWidget(), cabe ? static_cast<QWidget*>(comentario) : proyecto);
        EXPECT_EQ(proyecto->text(), cabe ? "EDIFICIO 1" : largo);
        EXPECT_EQ(comentario->toPlainText().size(), 259);
    }
    comentario->setPlainText(QString(250, 'a') + "bcdef");
    auto* fecha = ventana.findChild<QLineEdit*>("Fecha");
    fecha->setText("31/02/2024");
    Pulsar(ventana, "Salvar");
    EXPECT_TRUE(ventana.isVisible());  // no such day
    EXPECT_EQ(ventana.focusWidget(), fecha);
    EXPECT_TRUE(fecha->toolTip().startsWith("No es una fecha"));
    fecha->setText("29-2-24");
    std::filesystem::rename(aplicacion.ArchivoProyecto, carpeta / "apartado");
    Pulsar(ventana, "Salvar");
    EXPECT_TRUE(ventana.isVisible());  // what could not be saved stays
    std::filesystem::rename(carpeta / "apartado", aplicacion.ArchivoProyecto);
    Pulsar(ventana, "Salvar");
    EXPECT_EQ(fecha->text(), "29/02/2024");
    EXPECT_FALSE(ventana.isVisible());
    Conexion conexion;
    DatosDelProyecto datos;
    AbrirConexion(conexion, aplicacion.ArchivoProyecto);
    proyecto::LeerProyecto(conexion, "", datos);
    EXPECT_EQ(datos.Proyecto, "EDIFICIO 1");
    EXPECT_EQ(aplicacion.Datos.Proyecto, "EDIFICIO 1");
    EXPECT_EQ(datos.Comentario, std::string(250, 'a') + "bcdef");
    EXPECT_EQ(FormatoFecha(datos.Fecha), "29/02/2024");
}

TEST_F(Ventanas, UnCeroEnLosGeneralesTomaElFoco) {
    AbrirConexion(aplicacion.Proyecto.ConexionProyecto, aplicacion.ArchivoProyecto);
    VentanaLosaGeneral ventana(aplicacion, caja, nullptr);
    ventana.show();
    const auto campos = ventana.findChildren<QLineEdit*>();
    ASSERT_EQ(campos.size(), 7);
    EXPECT_EQ(campos[2]->text(), "0,025");
    Escribir(campos[1], "40.000");  // 40 or 40000, and that passes 16 bits
    Pulsar(ventana, "Aceptar");
    EXPECT_EQ(ventana.focusWidget(), campos[1]);
    campos[1]->setText("4200");
    for (const int cero : {4, 6}) {
        campos[4]->setText(cero == 4 ? "0" : "1,6");
        campos[6]->setText("0");
        Pulsar(ventana, "Aceptar");
        EXPECT_TRUE(ventana.isVisible());
        EXPECT_EQ(ventana.focusWidget(), campos[cero]);
    }
    campos[6]->setText("0.85");  // a point does for a comma
    Pulsar(ventana, "Aceptar");
    EXPECT_FALSE(ventana.isVisible());
    EXPECT_EQ(aplicacion.Generales.FiCorte, 0.85);
    EXPECT_EQ(ventana.result(), QDialog::Accepted);
}

TEST_F(Ventanas, LaConfiguracionSeGuardaAlAceptar) {
    for (const std::int16_t respuesta : {RespuestaCancelar, RespuestaAceptarONo, RespuestaSi}) {
        caja.Respuestas = {respuesta};
        VentanaConfigurar ventana(aplicacion, servicios, nullptr);
        ventana.show();
        for (const char* boton : {"Ajustar la Imagen", "Al fondo"}) Pulsar(ventana, boton);
        ventana.findChild<QComboBox*>()->setCurrentIndex(6);
        Pulsar(ventana, "Aceptar");
        EXPECT_EQ(caja.Mensajes.back().Botones, BotonesCaja::SiNoCancelar);
        EXPECT_EQ(ventana.isVisible(), respuesta == RespuestaCancelar);
        const bool guardada = respuesta == RespuestaSi;
        EXPECT_EQ(ventana.Guardada(), guardada);
        const Tapiz enArchivo = LeerTapiz(ArchivoTapiz(carpetas), ImagenPorDefecto(carpetas));
        for (const Tapiz& tapiz : {aplicacion.Preferencias, enArchivo})
            EXPECT_EQ(std::tuple(tapiz.Ajustar, tapiz.Vertical == 2, tapiz.TamanoAyuda),
                      std::tuple(guardada, guardada, guardada ? 7 : 4));
    }
}

/// What is captured has no file before the settings are accepted, and the window is not in the picture.
TEST_F(Ventanas, LaCapturaSeGuardaAlAceptar) {
    for (const std::int16_t respuesta : {RespuestaAceptarONo, RespuestaSi}) {
        caja.Respuestas = {respuesta};
        const std::size_t antes = ArchivosDe(carpetas.Tapices()).size();
        VentanaConfigurar ventana(aplicacion, servicios, nullptr);
        bool visible = true;
        QTimer::singleShot(0, qApp, [&] {
            QTimer::singleShot(150, qApp, [&] { visible = ventana.isVisible(); });
            QTimer::singleShot(800, qApp, [&] {
                EXPECT_EQ(ArchivosDe(carpetas.Tapices()).size(), antes);
                Pulsar(ventana, "Aceptar");
            });
            Pulsar(ventana, "Capturar Imagen");
        });
        ventana.exec();
        EXPECT_FALSE(visible);
        EXPECT_EQ(ArchivosDe(carpetas.Tapices()).size(), antes + (respuesta == RespuestaSi ? 1 : 0));
    }
}

TEST_F(Ventanas, LaReparacionTomaLoElegido) {
    VentanaCompactar ventana(aplicacion, servicios, nullptr);
    ventana.show();
    ASSERT_EQ(ventana.findChild<QListWidget*>()->count(), 1);
    Pulsar(ventana, "Aceptar");
    EXPECT_EQ(caja.Mensajes.back().Encabezado, "Reparar Archivos...");
    Pulsar(ventana, "Seleccionar Todos");
    Pulsar(ventana, "Aceptar");
    EXPECT_EQ(caja.Mensajes.back().Texto, "¡Se Repararon Y Compactaron ( 1 ) Archivos con Exito!");
    EXPECT_FALSE(ventana.isVisible());
}

}  // namespace
}  // namespace trabex::prueba
