// The slab's windows through their real widgets.

#include <set>

#include "drawing/qt/WidgetLienzo.h"
#include "shell/qt/ComunVentanas.h"
#include "shell/qt/TablaDatos.h"
#include "slab/ui/ComandosLosas.h"
#include "slab/ui/qt/VentanaCarga.h"
#include "slab/ui/qt/VentanaLosaDatos.h"
#include "slab/ui/qt/VentanaLosas.h"
#include "support/LosasGuiadas.h"
#include "support/qt/Ventanas.h"

namespace trabex::prueba {

using namespace dibujo::losa;
using namespace losas::ui::qt;
using namespace programa::qt;
namespace {

struct Ventanas : testing::Test {
    EspacioDePrueba e{
        {Nombrada(LosaContinua({5, 4, 3}, 300, 90), "L-1"), Nombrada(LosaContinua({6}, 200), "L-2")}};
};

TEST_F(Ventanas, LosDatosSeEscribenEnLasTablasYLleganAlArchivo) {
    VentanaLosaDatos ventana(e.espacio, e.caja, nullptr);
    ventana.show();
    EXPECT_EQ(ventana.windowTitle(), "Datos Generales Losa: L-1");
    const auto contar = [&](const char* campo, const char* cuantos) {
        auto* contador = ventana.findChild<QLineEdit*>(campo);
        contador->setText(cuantos);
        QTest::keyClick(contador, Qt::Key_Return);
        return contador->text();
    };
    contar("NumeroTramos", "4");
    auto* luces = ventana.findChild<TablaDatos*>("Luces");
    auto* ejes = ventana.findChild<TablaDatos*>("Ejes");
    ASSERT_EQ(luces->Filas(), 4);
    ASSERT_EQ(ejes->Filas(), 5);
    EXPECT_TRUE(luces->model()->setData(luces->model()->index(3, 0), "3,75"));
    EXPECT_TRUE(ejes->model()->setData(ejes->model()->index(4, 0), "E"));

    for (const char* muchas : {"6", "70000", "99999999999999999999"}) {
        EXPECT_EQ(contar("NumeroJuntasD", muchas), "0");
        EXPECT_EQ(e.caja.Mensajes.back().Texto, "El Número de Juntas Desplazadas no puede ser > 5");
    }
    EXPECT_EQ(e.caja.Mensajes.size(), 3U);
    EXPECT_EQ(contar("NumeroJuntasD", "1"), "1");
    auto* juntas = ventana.findChild<TablaDatos*>("JuntasD");
    for (const char* mucho : {"6", "32768", "1000000000000000000000"}) {
        EXPECT_FALSE(juntas->model()->setData(juntas->model()->index(0, 0), mucho));
        EXPECT_EQ(e.caja.Mensajes.back().Texto, "El Numero de la Junta no puede ser > que 5");
    }
    EXPECT_TRUE(juntas->model()->setData(juntas->model()->index(0, 0), "5"));
    EXPECT_TRUE(juntas->model()->setData(juntas->model()->index(0, 2), "-0.35"));

    ventana.MostrarPagina(PaginaLosa::Apoyos);
    auto* apoyos = ventana.findChild<TablaDatos*>("Apoyos");
    for (const char* tipo : {"6", "0", "-70000", "70000"}) {
        EXPECT_FALSE(apoyos->model()->setData(apoyos->model()->index(3, 1), tipo));
        EXPECT_EQ(e.caja.Mensajes.back().Texto, "El Tipo de Apoyo no puede ser < 1 ni > 5");
        EXPECT_EQ(apoyos->model()->index(3, 1).data(), "2");
    }
    EXPECT_EQ(e.caja.Mensajes.back().Encabezado, "Apoyos Restringidos...");
    apoyos->IrA(4, 1);
    for (const char* tipo : {"4", "3", "2"}) Pulsar(ventana, tipo);  // the last row takes the last two
    EXPECT_EQ(apoyos->FilaActual(), 5);
    Pulsar(ventana, "Salvar");
    const Losa losa = e.Guardada("L-1");
    ASSERT_EQ(losa.Tramos.size(), 5U);
    EXPECT_EQ(losa.Tramos[4].LT, 3.75);
    EXPECT_EQ(losa.Ejes[5].Eje, "E");
    EXPECT_EQ(losa.Ejes[4].Tipo, Empotramiento);
    EXPECT_EQ(losa.Ejes[5].Tipo, RodilloEnX);
    EXPECT_EQ(losa.JuntasD[1].y, -0.35);
}

TEST_F(Ventanas, LaSeccionMuestraLoDeSuClase) {
    VentanaLosaDatos ventana(e.espacio, e.caja, nullptr);
    ventana.show();
    const auto campo = [&](const char* nombre) { return ventana.findChild<QLineEdit*>(nombre); };
    EXPECT_TRUE(campo("So")->isVisible());
    EXPECT_FALSE(campo("Hm")->isVisible());
    Pulsar(ventana, "Losa Maciza");
    EXPECT_FALSE(campo("Bo")->isVisible() || campo("Loseta")->isVisible());
    EXPECT_TRUE(campo("Hm")->isVisible());
    ventana.MostrarPagina(PaginaLosa::Cargas);
    Escribir(campo("Hm"), "0");
    Pulsar(ventana, "Salvar");
    EXPECT_EQ(ventana.Pagina(), PaginaLosa::Seccion);
    EXPECT_EQ(ventana.focusWidget(), campo("Hm"));
    EXPECT_TRUE(e.caja.Mensajes.empty());
    Escribir(campo("Hm"), "0,18");
    e.caja.Respuestas = {RespuestaSi};
    ventana.reject();
    EXPECT_FALSE(ventana.isVisible());
    EXPECT_TRUE(e.Guardada("L-1").OpcionMaciza);
    EXPECT_EQ(e.Guardada("L-1").Hm, 0.18);
}

TEST_F(Ventanas, CabenEn800x600) {
    const VentanaLosaDatos datos(e.espacio, e.caja, nullptr);
    e.espacio.Lista().Cerrar();
    const VentanaLosas losas(e.aplicacion, e.servicios, e.memoria, {}, nullptr);
    for (const QWidget* ventana : std::initializer_list<const QWidget*>{&datos, &losas}) {
        EXPECT_LE(ventana->minimumSizeHint().width(), 784) << S(ventana->objectName());
        EXPECT_LE(ventana->minimumSizeHint().height(), 552) << S(ventana->objectName());
    }
}

/// Enter stores and stays; another span comes with the page keys or the scroller, once nothing stands
/// refused.
TEST_F(Ventanas, LasCargasSeEntranConEnterYSeIgualan) {
    VentanaLosaDatos ventana(e.espacio, e.caja, nullptr);
    ventana.show();
    const auto escribir = [](QLineEdit* campo, const char* texto) {
        Escribir(campo, texto);
        QTest::keyClick(campo, Qt::Key_Return);
        return campo->text();
    };
    EnLaVentana([&](QWidget& carga) {
        const auto campos = carga.findChildren<QLineEdit*>();
        auto* tramo = carga.findChild<QScrollBar*>();
        EXPECT_EQ(campos[0]->text(), "300");
        escribir(campos[0], "410");
        escribir(campos[1], "110");
        EXPECT_EQ(tramo->value(), 1);
        QTest::keyClick(campos[1], Qt::Key_PageDown);
        EXPECT_EQ(tramo->value(), 2);
        EXPECT_EQ(campos[0]->text(), "300");
        escribir(campos[0], "420");
        for (const char* malo : {"350.5", "1.250,5", "1e308", "9999999999", "3 50", "-"}) {
            EXPECT_EQ(escribir(campos[1], malo), malo);
            EXPECT_FALSE(campos[1]->toolTip().isEmpty());
            tramo->setValue(3);
            EXPECT_EQ(tramo->value(), 2);
            QTest::keyClick(campos[1], Qt::Key_Tab);
            Pulsar(carga, "Fijar Carga");
            EXPECT_TRUE(carga.isVisible());
            EXPECT_EQ(carga.focusWidget(), campos[1]);
        }
        escribir(campos[1], "1.120");
        EXPECT_TRUE(campos[1]->toolTip().isEmpty());
        e.caja.Respuestas = {RespuestaSi};
        Pulsar(carga, "Igualar");
    });
    Pulsar(ventana, "Carga Uniforme");
    EXPECT_EQ(e.caja.Mensajes.back().Texto, "¿Igualar Todos los Tramos a la Carga Seleccionada?");
    auto* cargas = ventana.findChild<TablaDatos*>("Cargas");
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(cargas->model()->index(i, 0).data(), "420");
        EXPECT_EQ(cargas->model()->index(i, 1).data(), "1120");
    }
    EXPECT_TRUE(ventana.LosaModificada());
}

/// The workspace with one of the operations that other parts give it.
struct Espacio : Ventanas {
    Espacio() {
        e.espacio.Lista().Cerrar();
        ventana.emplace(e.aplicacion, e.servicios, e.memoria,
                        OperacionesDeLosas{{"ID_Exportar", [this](Losas&, QWidget&) { ++exportadas; }}},
                        nullptr);
        ventana->show();
        lista = ventana->findChild<QListWidget*>("Lista");
    }
    EstadoLosas& Estado() { return ventana->Operaciones().Estado(); }

    int exportadas = 0;
    std::optional<VentanaLosas> ventana;
    QListWidget* lista = nullptr;
};

TEST_F(Espacio, SeleccionaHojaYCargasYDibujaAlMomento) {
    ASSERT_EQ(lista->count(), 2);
    EXPECT_EQ(lista->currentRow(), 0);
    lista->setCurrentRow(1);
    EXPECT_EQ(ventana->findChild<QLabel*>("Encabezado")->text(), "LOSA NERVADA: L-2");
    ventana->Accion("ID_ZoomIN")->trigger();
    EXPECT_EQ(Estado().Hoja.Vista.Zoom, 1.1);
    ventana->Accion("ID_PanRealtime")->trigger();
    lista->setCurrentRow(0);
    EXPECT_EQ(Estado().Hoja.Vista.Zoom, 1);
    ventana->Accion("ID_ZoomExtents")->trigger();
    EXPECT_FALSE(ventana->Accion("ID_PanRealtime")->isChecked());
    Pulsar(*ventana, "Permanente + Variable");
    EXPECT_EQ(Estado().Hoja.OpcionCarga, CargaPorCasos);
    QTest::keyClick(&*ventana, Qt::Key_Escape);
    EXPECT_TRUE(ventana->isVisible());
    EXPECT_EQ(ventana->Accion("ID_Planex")->toolTip(),
              "<b>Exportar a Planex Estructural</b><br>Exportar las losas la programa de dibujo <br>Planex "
              "Estructural 2023. <br>(no disponible en esta edición)");
}

TEST_F(Espacio, ElPunteroLeeLosDiagramasYElDobleClicAbreLosDatos) {
    auto* lienzo = ventana->findChild<dibujo::qt::WidgetLienzo*>("Lienzo");
    const auto* pie = ventana->findChild<QLabel*>("Pie");
    const QString estado = pie->text();
    ventana->findChild<QTabBar*>()->setCurrentIndex(1);
    const HojaLosa& hoja = Estado().Hoja;
    const auto en = [&](double metros, double bajo) {
        return QPoint(
            hoja.Vista.OrigenX + static_cast<int>(hoja.Vista.Escala * (hoja.Ejes.EjesX[1] + metros)),
            hoja.Vista.OrigenY + static_cast<int>(hoja.Vista.Escala * bajo));
    };
    const QRgb rojo = QColor(200, 30, 30).rgb();
    const QPoint lugar = en(1, 2.97);
    QTest::mouseMove(lienzo, lugar);
    EXPECT_TRUE(pie->text().contains(" m   Mu = ")) << S(pie->text());
    EXPECT_EQ(lienzo->grab().toImage().pixel(lugar), rojo);
    QTest::keyClick(lienzo, Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_TRUE(pie->text().contains("x = 1,")) << S(pie->text());
    EXPECT_NE(lienzo->grab().toImage().pixel(lugar), rojo);
    QTest::mouseMove(lienzo, en(1, 0));
    EXPECT_EQ(pie->text(), estado);

    const auto abierto = [&](const QPoint& donde, const char* tabla) {
        std::pair<int, int> celda;
        QTimer vigia;
        vigia.callOnTimeout([&] {
            auto* datos = dynamic_cast<VentanaLosaDatos*>(QApplication::activeModalWidget());
            if (datos == nullptr) return;
            vigia.stop();
            const auto* filas = datos->findChild<TablaDatos*>(tabla);
            EXPECT_EQ(datos->focusWidget(), filas) << tabla;
            celda = {filas->FilaActual(), filas->currentIndex().column()};
            datos->reject();
        });
        vigia.start(10);
        QTest::mouseDClick(lienzo, Qt::LeftButton, {}, donde);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !vigia.isActive() && celda.first != 0; }));
        return celda;
    };
    const double LT = Estado().Abierta.Tramos[1].LT;
    EXPECT_EQ(abierto(en(LT + 0.6, 0), "Luces"), std::pair(2, 0));
    EXPECT_EQ(abierto(en(LT + 0.6, -0.35), "Cargas"), std::pair(2, 0));
    EXPECT_EQ(abierto(en(LT, 0.3), "Apoyos"), std::pair(2, 1));
}

TEST_F(Espacio, UnaLosaLargaSeVePorGruposQueCompartenUnEje) {
    EstadoLosas& estado = Estado();
    estado.Abierta = LosaUniforme(25, 5, 300, 100);
    ventana->Operaciones().Calcular();
    const auto mostrar = [&](const char* clave) {
        ventana->Accion(clave)->trigger();
        return estado.Hoja.Tramos;
    };
    EXPECT_EQ(estado.Hoja.Tramos, (GrupoDeTramos{1, 25}));
    EXPECT_EQ(mostrar("ID_GrupoSiguiente"), (GrupoDeTramos{1, 9}));
    EXPECT_TRUE(ventana->Accion("ID_PorGrupos")->isChecked());
    ventana->Accion("ID_ZoomIN")->trigger();
    EXPECT_EQ(mostrar("ID_GrupoSiguiente"), (GrupoDeTramos{10, 18}));
    EXPECT_EQ(estado.Hoja.Vista.Zoom, 1);
    mostrar("ID_GrupoSiguiente");
    EXPECT_EQ(mostrar("ID_GrupoSiguiente"), (GrupoDeTramos{19, 25}));
    EXPECT_EQ(mostrar("ID_GrupoAnterior"), (GrupoDeTramos{10, 18}));
    EXPECT_EQ(mostrar("ID_PorGrupos"), (GrupoDeTramos{1, 25}));
    EXPECT_FALSE(ventana->Accion("ID_PorGrupos")->isChecked());
}

TEST_F(Espacio, UnaLosaQueNoSeSostieneSeMarcaYSeDice) {
    ventana->resize(800, 600);
    const auto* avisos = ventana->findChild<QLabel*>("Avisos");
    EXPECT_TRUE(lista->item(0)->icon().isNull());
    for (EjeLosa& eje : Estado().Abierta.Ejes) eje.Tipo = SinApoyo;
    ventana->Operaciones().Calcular();
    EXPECT_FALSE(lista->item(0)->icon().isNull());
    EXPECT_TRUE(lista->item(1)->icon().isNull() && avisos->isVisible());
    EXPECT_TRUE(avisos->text().startsWith("Eje 4: La losa no se sostiene")) << avisos->text().toStdString();
    EXPECT_TRUE(avisos->toolTip().contains("no se sostiene"));
    EXPECT_FALSE(lista->item(0)->toolTip().isEmpty());
    EXPECT_EQ(ventana->width(), 800);  // a long line doesn't widen the window
    ventana->Operaciones().Lista().Seleccionar(1);
    EXPECT_TRUE(lista->item(0)->icon().isNull());
}

TEST_F(Espacio, LosMandosDeOtrasPartesSeEnchufanYPidenUnaLosa) {
    EXPECT_FALSE(ventana->Accion("ID_Planex")->isEnabled());
    ventana->Accion("ID_Exportar")->trigger();
    EXPECT_EQ(exportadas, 1);
    e.caja.Respuestas = {RespuestaSi, RespuestaSi};
    ventana->Accion("ID_Eliminar")->trigger();
    ventana->Accion("ID_Eliminar")->trigger();
    for (const char* clave : {"ID_Exportar", "ID_Editar", "ID_Eliminar", "ID_Generales"})
        EXPECT_FALSE(ventana->Accion(clave)->isEnabled()) << clave;
    EXPECT_TRUE(ventana->Accion("ID_Nueva")->isEnabled());
}

/// Letters that Alt reaches in a window, or plain keys in a menu: each must lead to one place.
QString Letras(const QStringList& textos) {
    QString letras;
    for (const QString& texto : textos) {
        const qsizetype lugar = texto.indexOf('&');
        if (lugar >= 0) letras += texto.at(lugar + 1).toUpper();
    }
    return letras;
}

void EsperarDistintas(const QString& letras) {
    EXPECT_EQ(QSet<QChar>(letras.begin(), letras.end()).size(), letras.size()) << letras.toStdString();
}

TEST_F(Espacio, TodoSeAlcanzaConElTeclado) {
    QStringList rotulos;
    std::set<QAction*> enMenus;
    for (const QAction* titulo : ventana->findChild<QMenuBar*>()->actions()) {
        rotulos << titulo->text();
        QStringList entradas;
        for (QAction* accion : titulo->menu()->actions()) {
            if (accion->isSeparator()) continue;
            enMenus.insert(accion);
            entradas << accion->text();
        }
        EXPECT_EQ(Letras(entradas).size(), entradas.size()) << titulo->text().toStdString();
        EsperarDistintas(Letras(entradas));
    }
    for (const auto& comando : ComandosLosas) EXPECT_TRUE(enMenus.contains(ventana->Accion(comando.Clave)));
    for (const auto& comando : ComandosDeVista) EXPECT_TRUE(enMenus.contains(ventana->Accion(comando.Clave)));
    const auto* hojas = ventana->findChild<QTabBar*>();
    for (int hoja = 0; hoja < hojas->count(); ++hoja) rotulos << hojas->tabText(hoja);
    for (const auto* rotulo : ventana->findChildren<QLabel*>())
        if (rotulo->buddy() != nullptr) rotulos << rotulo->text();
    for (const auto* boton : ventana->findChildren<QPushButton*>()) rotulos << boton->text();
    for (const auto* boton : ventana->findChild<QToolBar*>()->findChildren<QToolButton*>())
        EXPECT_TRUE((boton->focusPolicy() & Qt::TabFocus) != 0) << boton->text().toStdString();
    QTest::keyClick(lista, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "L-1");
    EXPECT_EQ(Letras(rotulos).size(), 9) << rotulos.join('|').toStdString();
    EsperarDistintas(Letras(rotulos));
}

TEST_F(Espacio, RecuerdaComoSeRepartioLaVentana) {
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, Q(e.carpeta.Camino().string()));
    QCoreApplication::setOrganizationName("prueba");
    ventana->findChild<QSplitter*>()->setSizes({400, 500});
    ventana->findChild<QTabBar*>()->setCurrentIndex(2);
    Pulsar(*ventana, "Permanente + Variable");
    ventana->Accion("ID_PorGrupos")->trigger();
    const QList<int> repartida = ventana->findChild<QSplitter*>()->sizes();
    ventana->accept();
    VentanaLosas otra(e.aplicacion, e.servicios, e.memoria, {}, nullptr);
    otra.show();
    EXPECT_EQ(otra.findChild<QSplitter*>()->sizes(), repartida);
    EXPECT_EQ(otra.findChild<QTabBar*>()->currentIndex(), 2);
    EXPECT_EQ(otra.Operaciones().Estado().Hoja.VistaActual, VistaLosa(2));
    EXPECT_EQ(otra.Operaciones().Estado().Hoja.OpcionCarga, CargaPorCasos);
    EXPECT_TRUE(otra.Operaciones().Estado().Hoja.PorGrupos && otra.Accion("ID_PorGrupos")->isChecked());
    QCoreApplication::setOrganizationName({});
}

TEST_F(Espacio, CreaConElDeslizadorDeNombresYEntraSusDatos) {
    e.memoria.UltimoHo = 0.3;
    EnLaVentana([&](QWidget& nueva) {
        EXPECT_EQ(nueva.windowTitle(), "CREAR NUEVA LOSA");
        auto* nombre = nueva.findChild<QLineEdit*>("Nombre");
        QTest::keyClick(nombre, Qt::Key_Down);
        EXPECT_EQ(lista->currentRow(), 1);
        for (const char* no : {"   ", " l-1 "}) {
            nombre->setText(no);
            Pulsar(nueva, "Aceptar");
            EXPECT_TRUE(nueva.isVisible());
        }
        nombre->setText(" L-0 ");
        EnLaVentana([this](QDialog& datos) {
            EXPECT_EQ(datos.windowTitle(), "Datos Generales Losa: L-0");
            EXPECT_EQ(ventana->findChild<QLabel*>("Encabezado")->text(), "LOSA NERVADA: L-0");
            datos.reject();
        });
        Pulsar(nueva, "Aceptar");
    });
    ventana->Accion("ID_Nueva")->trigger();
    ASSERT_EQ(lista->count(), 3);
    EXPECT_EQ(lista->currentRow(), 2);
    EXPECT_EQ(lista->item(2)->text(), "L-0");  // last, not in its place
    ASSERT_EQ(e.caja.Mensajes.size(), 1U);
    EXPECT_EQ(e.caja.Dicho(), "La Losa: l-1\nLa Losa ya Existe en el Proyecto...|Creando Nueva Losa...");
    const Losa losa = e.Guardada("L-0");
    EXPECT_EQ(std::tuple(losa.OpcionMaciza, losa.Bo, losa.Ho, losa.So, losa.Hm, losa.Loseta),
              std::tuple(false, 0.1, 0.3, 0.5, 0.2, 0.05));
}

}  // namespace
}  // namespace trabex::prueba
