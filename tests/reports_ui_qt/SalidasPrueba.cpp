// The output dialogs, the viewer and the printers, answered by a script and by real widgets.

#include <QPrinter>

#include "ReportePreparado.h"
#include "reports/salidas/qt/VistaPaginas.h"
#include "reports/ui/qt/ImpresorasQt.h"
#include "reports/ui/qt/ImprimirDibujos.h"
#include "reports/ui/qt/PanelProgresoQt.h"
#include "reports/ui/qt/VentanaSalidaReporte.h"
#include "reports/ui/qt/VentanaSeleccionarImpresora.h"
#include "reports/ui/qt/VentanaVerReportes.h"
#include "slab/ui/qt/ImprimirGraficos.h"
#include "support/ImpresorasGuiadas.h"
#include "support/qt/Ventanas.h"

namespace trabex::prueba {

using namespace dibujo::losa;
using namespace documento;
using namespace losas::ui::qt;
using namespace montaje;
using namespace programa::qt;
using namespace reportes::ui;
using namespace reportes::ui::qt;
namespace {

struct PantallaGuiada : PantallaSalidaReporte {
    bool Esperando = false;
    int Vistos = 0;
    bool Cerrada = false;
    void PunteroDeEspera(bool espera) override { Esperando = espera; }
    void Ver(const Documento& documento) override { Vistos += documento.Secciones.empty() ? 0 : 1; }
    void Cerrar() override { Cerrada = true; }
};

class SalidasDeReporte : public ReportePreparado {
  protected:
    SalidasDeReporte() {
        carpetas.CaminoPrograma = carpeta / "programa";
        carpetas.CaminoUsuario = carpeta / "usuario";
        std::filesystem::create_directories(carpetas.CaminoUsuario / "Trabajo");
        std::filesystem::create_directories(carpetas.ReportesExportados());
        std::filesystem::copy(std::filesystem::path(Install()) / "Reportes",
                              carpetas.CaminoPrograma / "Reportes");
        base = carpetas.CaminoUsuario / "Trabajo" / "Temporal.mdb";
        Preparar({LosaUniforme(30, 5, 300, 100)});
        estado.ReporteActual = 4;
    }
    ImpresorasGuiadas impresoras;
    EstadoSalida estado;
    EntornoSalida entorno{aplicacion, estado, motor, impresoras, servicios};
    PantallaGuiada vista;
};

TEST_F(SalidasDeReporte, CadaArchivoSePideSeEscribeYSeOfreceAbrir) {
    const std::array<const char*, 4> titulos{"Exportar el Reporte a formato: Adobe Acrobat(PDF)",
                                             "Exportar el Reporte a formato: HTLM 4.0", "",
                                             "Exportar el Reporte a formato: Microsoft Word (RTF)"};
    for (const std::uint8_t salida : std::array<std::uint8_t, 3>{1, 2, 4}) {
        ImpreReport operaciones(entorno, vista);
        const std::filesystem::path archivo = carpeta / ("salida " + std::to_string(salida));
        EscribirArchivo(archivo, "anterior");
        dialogos.Elegidos = {archivo};
        caja.Respuestas = {salida == 2 ? RespuestaAceptarONo : RespuestaSi};
        operaciones.Aceptar(salida);
        const PeticionArchivo& peticion = dialogos.Peticiones.back();
        EXPECT_EQ(peticion.Titulo, titulos[salida - 1U]);
        EXPECT_EQ(peticion.Carpeta, carpetas.ReportesExportados());
        EXPECT_TRUE(peticion.Guardar && peticion.AvisarReemplazo);
        EXPECT_EQ(estado.ArchivoExportado, archivo);
        EXPECT_GT(std::filesystem::file_size(archivo), 2000U);
        EXPECT_EQ(caja.Dicho(),
                  "¿Desea Abrir el Archivo " + TextoDeCamino(archivo) + "?|Abrir el Archivo Exportado...");
        EXPECT_EQ(plataforma.Abiertos.size(), salida == 1 || salida == 2 ? 1U : 2U);
        EXPECT_TRUE(vista.Cerrada && !vista.Esperando);
        EXPECT_EQ(estado.FormatoSalida, salida);
    }
}

TEST_F(SalidasDeReporte, CancelarUnErrorOUnReporteDesconocidoDejanLaVentana) {
    ImpreReport operaciones(entorno, vista);
    operaciones.Aceptar(1);  // the file dialog is cancelled
    impresoras.Acepta = false;
    operaciones.Aceptar(SalidaImpresora);
    EXPECT_TRUE(impresoras.Ultimo.Preguntar && impresoras.Ultimo.Copias == 1);
    for (const std::int16_t actual : std::array<std::int16_t, 3>{0, 6, -1}) {
        estado.ReporteActual = actual;
        operaciones.Aceptar(SalidaPantalla);
    }
    EXPECT_TRUE(caja.Mensajes.empty());
    estado.ReporteActual = 4;
    EscribirArchivo(carpetas.CaminoPrograma / "Reportes" / "ResultadosLosa.rpt", "nada\n");
    operaciones.Aceptar(SalidaPantalla);
    ASSERT_EQ(caja.Mensajes.size(), 1U);
    EXPECT_EQ(caja.Dicho(),
              "Error Número: 321\nResultadosLosa.rpt, línea 1: no existe el elemento \"nada\"|Error en el "
              "Reporte...");
    EXPECT_EQ(vista.Vistos, 0);
    EXPECT_FALSE(vista.Cerrada || vista.Esperando);
}

TEST_F(SalidasDeReporte, LosGraficosVuelvenALaPantalla) {
    ImpreGrafico graficos(entorno, vista);
    ImpreReport tablas(entorno, vista);
    tablas.Aceptar(SalidaImpresora);
    EXPECT_EQ(estado.FormatoSalida, SalidaImpresora);
    graficos.Aceptar(SalidaImpresora);
    EXPECT_EQ(estado.FormatoSalida, SalidaPantalla);
    EXPECT_EQ(impresoras.Impresos, (std::vector<std::string>{"", ""}));
    estado.GraficoHelicoidal = true;
    graficos.Aceptar(SalidaImpresora);
    EXPECT_EQ(impresoras.Impresos.size(), 3U);
    impresoras.Nombres.clear();
    tablas.Aceptar(SalidaImpresora);
    EXPECT_EQ(caja.Mensajes.back().Texto, "No hay impresoras instaladas en el sistema.");
}

TEST_F(SalidasDeReporte, ElDialogoMandaLaOpcionMarcada) {
    VentanaSalidaReporte ventana(entorno, VentanaSalidaReporte::Clase::Tabular, nullptr);
    ventana.show();
    ventana.findChild<QAbstractButton*>("Carpeta")->click();
    EXPECT_EQ(plataforma.Abiertos, std::vector{carpetas.ReportesExportados()});
    dialogos.Elegidos = {carpeta / "desde la ventana.htm"};
    Pulsar(ventana, "HTML 4.0 (Para la Web)...");
    Pulsar(ventana, "Aceptar");
    EXPECT_FALSE(ventana.isVisible());
    EXPECT_TRUE(std::filesystem::exists(carpeta / "desde la ventana.htm"));
    VentanaSalidaReporte otra(entorno, VentanaSalidaReporte::Clase::Tabular, nullptr);
    EXPECT_TRUE(qobject_cast<QRadioButton*>(BotonDe(otra, "HTML 4.0 (Para la Web)..."))->isChecked());
    Pulsar(otra, "En la Pantalla...");
    EnLaVentana([](QDialog& visor) {
        EXPECT_EQ(visor.windowTitle(), "TBX-Visualizador de Reportes");
        Pulsar(visor, "Retorno");
    });
    otra.show();
    Pulsar(otra, "Aceptar");
    EXPECT_FALSE(otra.isVisible());
}

TEST_F(SalidasDeReporte, ElVisorRecorreBuscaYAmplia) {
    Reporte reporte = Abrir("ResultadosLosa.rpt");
    VentanaVerReportes ventana(entorno, reporte.Contenido(), nullptr);
    ventana.resize(900, 700);
    ventana.show();
    auto* vista_ = dynamic_cast<VistaPaginas*>(ventana.findChild<QAbstractScrollArea*>());
    ASSERT_NE(vista_, nullptr);
    EXPECT_EQ(vista_->Zoom(), 100);
    auto* pagina = ventana.findChild<QSpinBox*>();
    ASSERT_GE(vista_->NumeroPaginas(), 3);
    QTest::keyClick(vista_, Qt::Key_End);
    EXPECT_EQ(pagina->value(), vista_->NumeroPaginas());
    pagina->setValue(2);
    EXPECT_EQ(vista_->PaginaActual(), 1);
    QTest::keyClick(vista_, Qt::Key_Home);
    auto* busqueda = ventana.findChild<QLineEdit*>("Busqueda");
    auto* hallazgos = ventana.findChild<QLabel*>("Hallazgos");
    QTest::keyClicks(busqueda, "INFLEXION");
    QTest::keyClick(busqueda, Qt::Key_Return);
    EXPECT_TRUE(hallazgos->text().startsWith(" 1 de ")) << S(hallazgos->text());
    EXPECT_GT(vista_->PaginaActual(), 0);
    EXPECT_TRUE(ventana.isVisible());  // Enter searches, and closes nothing
    busqueda->setText("no está en el reporte");
    QTest::keyClick(busqueda, Qt::Key_Return);
    EXPECT_EQ(hallazgos->text(), " No se encontró ");
    vista_->PonerZoom(vista_->ZoomDeAncho());
    EXPECT_GT(vista_->Zoom(), 100);
    EXPECT_FALSE(ventana.grab().toImage().isNull());
    dialogos.Elegidos = {carpeta / "desde el visor.rtf"};
    for (QAction* accion : ventana.findChildren<QAction*>())
        if (accion->text() == "Microsoft Word (RTF)...") accion->trigger();
    EXPECT_TRUE(std::filesystem::exists(carpeta / "desde el visor.rtf"));
}

TEST_F(SalidasDeReporte, LoImpresoEsLoMismoQueElPdf) {
    Reporte reporte = Abrir("ResultadosLosa.rpt");
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setOutputFormat(QPrinter::PdfFormat);
    impresora.setFullPage(true);
    impresora.setPageSize(QPageSize(QPageSize::Letter));
    const auto paginas = [](const QString& pdf) {
        QStringList textos;
        for (const QString& pagina : Correr("pdftotext", {"-layout", pdf, "-"}).split('\f'))
            textos.append(pagina.simplified());
        return textos;
    };
    const auto impreso = [&] {
        impresora.setOutputFileName(Ruta(carpeta / "impreso.pdf"));
        ImprimirPaginas(reporte.Contenido(), impresora);
        return paginas(Ruta(carpeta / "impreso.pdf"));
    };
    const QStringList esperado = paginas(Ruta(Exportar(reporte, FormatoPdf, "exportado.pdf")));
    EXPECT_EQ(impreso(), esperado);
    impresora.setFromTo(2, 2);
    EXPECT_EQ(impreso(), (QStringList{esperado[1], ""}));
    EXPECT_THROW(ImprimirPaginas(reporte.Contenido(), impresora, [](double) { return false; }),
                 TrabajoCancelado);
    EXPECT_FALSE(std::filesystem::exists(carpeta / "impreso.pdf"));
}

TEST_F(SalidasDeReporte, EscapeCancelaElMontaje) {
    entorno.CrearPanel = [] { return std::make_unique<PanelProgresoQt>(nullptr); };
    std::size_t paso = 0;
    EXPECT_FALSE(ExportadorReportes(entorno).ConPanel("Calculando", [&](const Avance& avance) {
        for (; paso < 200; ++paso) {
            Avisar(avance, paso, 200);
            QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape, Qt::NoModifier, 20);
        }
    }));
    EXPECT_LT(paso, 200U);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(ImprimirGraficos, CadaDibujoVaEnSuPaginaConSusDatos) {
    const CarpetaTemporal carpeta;
    const auto archivo = carpeta / "obra.los";
    ASSERT_TRUE(CrearBaseDatos(archivo, EsquemaDeProyecto()));
    ProyectoAbierto proyecto;
    ASSERT_TRUE(Abrir(proyecto, archivo));
    for (const auto& [nombre, tramos] :
         {std::pair{"LOSA A", 2U}, {"LOSA B", 12U}}) {  // the second on two pages
        Losa losa = LosaUniforme(tramos, 5, 300, 100);
        losa.Nombre = nombre;
        ASSERT_TRUE(AgregarLosa(proyecto, losa));
    }
    DatosDelProyecto datos;
    datos.Proyecto = "LA CEIBA";
    const DatosGenerales generales;
    EstadoReportes estado;
    HojaLosa pantalla;
    const auto impreso = [&](std::uint8_t opcion) {
        estado.OpcionGrafico = opcion;
        QPrinter impresora(QPrinter::HighResolution);
        impresora.setOutputFormat(QPrinter::PdfFormat);
        impresora.setOutputFileName(Ruta(carpeta / "dibujos.pdf"));
        ImprimirDibujos(impresora, [&](dibujo::qt::PapelQt& papel, const Avance&) {
            DibujarGraficosLosas(papel, {proyecto, datos, generales, 2}, pantalla, "MARÍA", estado);
        });
        const QString texto = Correr("pdftotext", {"-layout", Ruta(carpeta / "dibujos.pdf"), "-"});
        EXPECT_TRUE(texto.contains("PROYECTO: LA CEIBA") && texto.contains("Usuario: MARÍA"));
        return texto.split('\f', Qt::SkipEmptyParts);
    };
    const QStringList seleccionada = impreso(0);
    ASSERT_EQ(seleccionada.size(), 6);
    for (const QString& pagina : seleccionada) EXPECT_TRUE(pagina.contains("LOSA B"));
    EXPECT_TRUE(seleccionada[4].contains("(ANALISIS Y DISEÑO)") && seleccionada[4].contains("(Ejes 1 a 7)"));
    EXPECT_TRUE(seleccionada[5].contains("(Ejes 7 a 13)"));
    EXPECT_EQ(impreso(1).size(), 9);
    const QStringList reacciones = impreso(5);
    ASSERT_EQ(reacciones.size(), 3);
    EXPECT_TRUE(reacciones[0].contains("REACCIONES SOBRE LAS VIGAS") && !reacciones[0].contains("As Sup"));
    pantalla.Vista.Zoom = 2;  // what the screen shows
    EXPECT_EQ(impreso(0).size(), 3);
}

TEST_F(SalidasDeReporte, LaImpresoraSeMarcaYCambiaHastaElFinal) {
    VentanaSeleccionarImpresora ventana(entorno, nullptr);
    ventana.show();
    auto* lista = ventana.findChild<QListWidget*>();
    EXPECT_EQ(lista->currentRow(), 1);
    lista->setCurrentRow(0);
    Pulsar(ventana, "Aceptar");  // answered no
    EXPECT_TRUE(ventana.isVisible() && estado.Impresora.empty());
    EXPECT_EQ(caja.Mensajes.back().Texto, "Cambiar a esta Impresora?\nHP LaserJet");
    caja.Respuestas = {RespuestaSi};
    Pulsar(ventana, "Aceptar");
    EXPECT_FALSE(ventana.isVisible());
    EXPECT_EQ(SeleccionarImpresora(entorno).MarcarImpresoraDefecto(), 0U);
    ImpreReport(entorno, vista).Aceptar(SalidaImpresora);
    EXPECT_EQ(impresoras.Impresos, std::vector<std::string>{"HP LaserJet"});
    impresoras.Nombres.clear();
    VentanaSeleccionarImpresora vacia(entorno, nullptr);
    EXPECT_NE(vacia.findChild<QLabel*>("SinImpresoras"), nullptr);
}

}  // namespace
}  // namespace trabex::prueba
