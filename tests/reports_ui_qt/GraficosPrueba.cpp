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
    const auto leer = [](const Bytes& bytes, const char* formato) {
        return QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()),
                                formato);
    };
    const QImage leida = leer(mapa, "BMP"), comprimida = leer(png, "PNG");
    const QImage esperada = DibujarImagen(940, 580, SuperficieQt::FinuraDePapel, dibujar);
    ASSERT_EQ(leida.size(), esperada.size());
    EXPECT_LT(mapa.size(), 400000U);
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
    EXPECT_EQ(leer(superficie.Foto(), "JPG").size(), esperada.size());
}

TEST(OpcionesReporte, LoElegidoQuedaAlAceptarYSoloEntonces) {
    EstadoReportes estado;
    for (const bool acepta : {false, true}) {
        VentanaOpcionImpreLosas ventana(estado, {}, nullptr);
        Pulsar(ventana, "Todas las Losas del Proyecto");
        ventana.findChild<QCheckBox*>()->setChecked(true);
        Pulsar(ventana, acepta ? "Aceptar" : "Cancelar");
        EXPECT_EQ(ventana.Aceptado(), acepta);
        EXPECT_EQ(estado.OpcionExportarLosas, acepta ? 1 : 0);
        EXPECT_EQ(estado.ExportarDesplazamientos, acepta);
    }
    VentanaOpcionGrafico losas(OpcionGraficoE, estado, {}, nullptr);
    Pulsar(losas, "Reacciones sobre las Vigas");
    Pulsar(losas, "Aceptar");
    EXPECT_EQ(estado.OpcionGrafico, 5);
    VentanaOpcionGrafico escaleras(OpcionGraficoET, estado, {}, nullptr);
    for (const char* boton : {"Solicitaciones de las Escaleras", "Vertical", "A4", "Aceptar"})
        Pulsar(escaleras, boton);
    EXPECT_EQ(estado.OpcionGrafico, 3);
    EXPECT_TRUE(estado.Papel.A4 && !estado.Papel.Apaisado);
}

struct ExportarGrafico : testing::Test, Maquina {};

TEST_F(ExportarGrafico, SalvaLaImagenConSuZoomYRecuerdaLaCarpeta) {
    for (const char* nombre : {"otra", "ReportesExportados"})
        std::filesystem::create_directories(carpeta / nombre);
    carpetas.CaminoUsuario = carpeta.Camino();
    EstadoReportes estado;
    dialogos.Elegidos = {carpeta / "otra" / "g.bmp", carpeta / "otra" / "g.jpg", carpeta / "no hay" / "g.bmp",
                         carpeta / "g.svg", carpeta / "g.dxf"};
    LosaDibujada losa;
    double zoom = 0;
    {
        VentanaExportarGrafico ventana(
            {aplicacion, estado, servicios},
            [&](Lienzo& lienzo, EstadoVista& visor) {
                EXPECT_TRUE(visor.ExportandoGrafico);
                zoom = visor.Zoom;
                losa.Dibujar(lienzo, visor);
            },
            nullptr);
        ventana.show();
        ventana.findChild<QPushButton*>("Carpeta")->click();
        for (const char* boton : {"Zoom Más", "Zoom Más", "Exportar"}) Pulsar(ventana, boton);
        EXPECT_DOUBLE_EQ(zoom, 1.2);
        for (const char* boton : {"Imagen en Formato (JPG)", "Exportar", "Exportar"}) Pulsar(ventana, boton);
        ventana.findChild<QPushButton*>("Carpeta")->click();
        for (const char* boton :
             {"Dibujo Vectorial (SVG)", "Exportar", "Dibujo para Programas de CAD (DXF)", "Exportar"})
            Pulsar(ventana, boton);
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
    EXPECT_EQ(caja.Dicho(), "¡El Reporte se Exportó con Exito!|Exportar Gráficos...");
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
        EXPECT_TRUE(panel.Ventana()->isVisible() && panel.Ventana()->isModal() && panel.Cancelado());
    }
    EXPECT_FALSE(panel.Ventana()->isVisible());
}

}  // namespace
}  // namespace trabex::prueba
