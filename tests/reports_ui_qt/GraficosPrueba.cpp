#include <cmath>

#include "drawing/losa/GraficoLosa.h"
#include "drawing/qt/ImagenDeHoja.h"
#include "reports/montaje/qt/SuperficieQt.h"
#include "reports/ui/qt/PanelProgresoQt.h"
#include "reports/ui/qt/VentanaExportarGrafico.h"
#include "reports/ui/qt/VentanaOpcionesReporte.h"
#include "slab/CalcularLosa.h"
#include "support/LosasDePrueba.h"
#include "support/ProyectoDePrueba.h"
#include "support/ShellGuiado.h"
#include "support/qt/Ventanas.h"

namespace trabex::prueba {

using namespace dibujo;
using namespace dibujo::losa;
using namespace dibujo::qt;
using namespace montaje;
using namespace montaje::qt;
using namespace reportes::ui;
using namespace reportes::ui::qt;
namespace {

/// A slab with its results, and the sheet on which it is drawn.
struct LosaDibujada {
    LosaDibujada() {
        Datos = LosaContinua({4, 5, 3}, 300, 200);
        CalcularLosa(Datos, Generales, Resultados);
    }
    void Dibujar(Lienzo& lienzo, EstadoVista& visor) {
        HojaLosa hoja;
        hoja.Vista = visor;
        hoja.VistaActual = VistaDiseno;
        RedibujeVista(lienzo, hoja, {Datos, Generales, Resultados});
        visor = hoja.Vista;
    }
    Losa Datos;
    DatosGenerales Generales;
    ResultadosLosa Resultados;
};

TEST(SuperficieQt, ElMapaDeBitsEsElDibujoEnLaFinuraDelPapel) {
    LosaDibujada losa;
    EstadoVista visor;
    visor.ExportandoGrafico = true;
    const auto dibujar = [&](Lienzo& lienzo) {
        EXPECT_EQ(lienzo.ScaleWidth(), 940);
        EXPECT_EQ(lienzo.ScaleHeight(), 580);
        losa.Dibujar(lienzo, visor);
    };
    SuperficieQt superficie;
    superficie.Dibujar(AnchoGraficoTwips, AltoGraficoTwips, dibujar);
    const auto [mapa, png, trazos] = superficie.Imagen();
    QImage leida;
    ASSERT_TRUE(leida.loadFromData(reinterpret_cast<const uchar*>(mapa.data()), static_cast<int>(mapa.size()),
                                   "BMP"));
    const QImage esperada = DibujarImagen(940, 580, SuperficieQt::FinuraDePapel, dibujar);
    ASSERT_EQ(leida.size(), esperada.size());
    EXPECT_LT(mapa.size(), 400000U);
    const QImage comprimida =
        QImage::fromData(reinterpret_cast<const uchar*>(png.data()), static_cast<int>(png.size()), "PNG");
    ASSERT_EQ(comprimida.size(), esperada.size());
    int distintos = 0;
    // Colours past the 256 most frequent are near to one of them: no pixel is visibly another.
    int mayor = 0;
    for (int y = 0; y < leida.height(); ++y) {
        for (int x = 0; x < leida.width(); ++x) {
            const QRgb a = leida.pixel(x, y);
            const QRgb b = esperada.pixel(x, y);
            distintos += a != comprimida.pixel(x, y);
            mayor = std::max({mayor, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                              std::abs(qBlue(a) - qBlue(b))});
        }
    }
    EXPECT_LT(mayor, 24);
    EXPECT_EQ(distintos, 0);
    const Bytes foto = superficie.Foto();
    EXPECT_TRUE(
        QImage::fromData(reinterpret_cast<const uchar*>(foto.data()), static_cast<int>(foto.size()), "JPG")
            .size() == esperada.size());
}

TEST(OpcionesReporte, LoElegidoQuedaAlAceptarYSoloEntonces) {
    EstadoReportes estado;
    {
        VentanaOpcionImpreLosas ventana(estado, {}, nullptr);
        Pulsar(ventana, "Todas las Losas del Proyecto");
        Pulsar(ventana, "Cancelar");
        EXPECT_FALSE(ventana.Aceptado());
        EXPECT_EQ(estado.OpcionExportarLosas, 0);
    }
    VentanaOpcionImpreLosas ventana(estado, {}, nullptr);
    Pulsar(ventana, "Todas las Losas del Proyecto");
    ventana.findChild<QCheckBox*>()->setChecked(true);
    Pulsar(ventana, "Aceptar");
    EXPECT_TRUE(ventana.Aceptado());
    EXPECT_EQ(estado.OpcionExportarLosas, 1);
    EXPECT_TRUE(estado.ExportarDesplazamientos);

    VentanaOpcionGrafico losas(OpcionGraficoE, estado, {}, nullptr);
    Pulsar(losas, "Reacciones sobre las Vigas");
    Pulsar(losas, "Aceptar");
    EXPECT_EQ(estado.OpcionGrafico, 5);
    VentanaOpcionGrafico escaleras(OpcionGraficoET, estado, {}, nullptr);
    Pulsar(escaleras, "Solicitaciones de las Escaleras");
    Pulsar(escaleras, "Vertical");
    Pulsar(escaleras, "A4");
    Pulsar(escaleras, "Aceptar");
    EXPECT_EQ(estado.OpcionGrafico, 3);
    EXPECT_TRUE(estado.Papel.A4 && !estado.Papel.Apaisado);
}

TEST(ExportarGrafico, SalvaLaImagenConSuZoomYRecuerdaLaCarpeta) {
    const CarpetaTemporal carpeta;
    for (const char* nombre : {"otra", "ReportesExportados"})
        std::filesystem::create_directories(carpeta / nombre);
    Aplicacion aplicacion;
    const Carpetas carpetas{.CaminoPrograma = {}, .CaminoUsuario = carpeta.Camino(), .CaminoTemporales = {}};
    EstadoReportes estado;
    CajaGuiada caja;
    DialogosGuiados dialogos;
    PlataformaGuiada plataforma(carpeta.Camino());
    dialogos.Elegidos = {carpeta / "otra" / "g.bmp", carpeta / "otra" / "g.jpg", carpeta / "no hay" / "g.bmp",
                         carpeta / "g.svg", carpeta / "g.dxf"};
    LosaDibujada losa;
    double zoom = 0;
    {
        VentanaExportarGrafico ventana(
            {aplicacion, estado, {caja, dialogos, plataforma, carpetas}},
            [&](Lienzo& lienzo, EstadoVista& visor) {
                EXPECT_TRUE(visor.ExportandoGrafico);
                zoom = visor.Zoom;
                losa.Dibujar(lienzo, visor);
            },
            nullptr);
        ventana.show();
        ventana.findChild<QPushButton*>("Carpeta")->click();
        Pulsar(ventana, "Zoom Más");
        Pulsar(ventana, "Zoom Más");
        Pulsar(ventana, "Exportar");
        EXPECT_DOUBLE_EQ(zoom, 1.2);
        Pulsar(ventana, "Imagen en Formato (JPG)");
        Pulsar(ventana, "Exportar");
        Pulsar(ventana, "Exportar");
        ventana.findChild<QPushButton*>("Carpeta")->click();
        for (const char* formato : {"Dibujo Vectorial (SVG)", "Dibujo para Programas de CAD (DXF)"}) {
            Pulsar(ventana, formato);
            Pulsar(ventana, "Exportar");
        }
    }
    ASSERT_EQ(dialogos.Peticiones.size(), 5U);
    EXPECT_EQ(dialogos.Peticiones[0].Titulo, "Salvar el Gráfico Seleccionado");
    EXPECT_EQ(dialogos.Peticiones[0].Filtro, "Image (*.bmp)|*.bmp");
    EXPECT_EQ(dialogos.Peticiones[0].Carpeta, carpeta / "ReportesExportados");
    EXPECT_EQ(dialogos.Peticiones[1].Filtro, "Image (*.jpg)|*.jpg");
    EXPECT_EQ(dialogos.Peticiones[1].Carpeta, carpeta / "otra");
    // With the window's zoom; in metres there is none.
    EXPECT_NE(LeerArchivo(carpeta / "g.svg").find("font-size=\"1360."), std::string::npos);
    EXPECT_NE(LeerArchivo(carpeta / "g.dxf").find("\n0.271006\n"), std::string::npos);
    ASSERT_EQ(caja.Mensajes.size(), 5U);
    EXPECT_EQ(caja.Mensajes[0].Texto, "¡El Reporte se Exportó con Exito!");
    EXPECT_EQ(caja.Mensajes[0].Encabezado, "Exportar Gráficos...");
    EXPECT_EQ(caja.Mensajes[2].Texto.substr(0, 17), "Error Número: 76");
    EXPECT_EQ(plataforma.Abiertos,
              (std::vector<std::filesystem::path>{carpeta / "ReportesExportados", carpeta / "otra"}));
    const QImage bmp(QString::fromStdString((carpeta / "otra" / "g.bmp").string()), "BMP");
    const QImage jpg(QString::fromStdString((carpeta / "otra" / "g.jpg").string()), "JPG");
    ASSERT_FALSE(bmp.isNull());
    EXPECT_EQ(bmp.size(), jpg.size());
    EXPECT_EQ(bmp.pixel(1, 1), QColor(Qt::white).rgb());  // no grid
}

TEST(PanelProgreso, SeVeMientrasDuraYNadaLoCierra) {
    QWidget ventana;
    ventana.resize(800, 600);
    ventana.show();
    PanelProgresoQt panel(&ventana);
    {
        const auto visible = PanelALaVista(panel);
        panel.Avanzar(40, "Exportando la Losa: N+3.00");
        QTest::keyClick(panel.Ventana(), Qt::Key_Escape);
        panel.Ventana()->close();
        EXPECT_TRUE(panel.Ventana()->isVisible());
        EXPECT_TRUE(panel.Ventana()->isModal());
        EXPECT_TRUE(panel.Cancelado());
    }
    EXPECT_FALSE(panel.Ventana()->isVisible());
}

}  // namespace
}  // namespace trabex::prueba
