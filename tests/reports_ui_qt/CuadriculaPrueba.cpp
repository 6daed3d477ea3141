// The preview of a grid and its exports, answered by a script and by real widgets.

#include "base/Archivos.h"
#include "reports/salidas/qt/VistaPaginas.h"
#include "reports/ui/OpcionExportar2.h"
#include "reports/ui/qt/VentanaVistaPreviaR.h"
#include "reports/ui/qt/VistaDeTablas.h"
#include "support/CuadriculaDePrueba.h"
#include "support/ImpresorasGuiadas.h"
#include "support/ProyectoDePrueba.h"
#include "support/ShellGuiado.h"
#include "support/qt/Ventanas.h"

namespace trabex::prueba {

using namespace reportes::ui;
using namespace reportes::ui::qt;
using namespace salidas::qt;

namespace {

struct PantallaGuiada : PantallaOpcionExportar2 {
    std::vector<bool> Esperas;
    bool Cerrada = false;
    void PunteroDeEspera(bool espera) override { Esperas.push_back(espera); }
    void Cerrar() override { Cerrada = true; }
};

class PreviaDeCuadricula : public testing::Test, protected Maquina {
  protected:
    PreviaDeCuadricula() {
        carpetas.CaminoUsuario = carpeta / "usuario";
        aplicacion.Usuario = "ING. NÚÑEZ";
    }
    PantallaGuiada Exportar(std::uint8_t formato) {
        PantallaGuiada vista;
        OpcionExportar2(entorno, vista, grilla).Aceptar(formato);
        return vista;
    }
    ImpresorasGuiadas impresoras;
    EstadoSalida estado;
    salidas::MotorReportes motor;
    EntornoSalida entorno{aplicacion, estado, motor, impresoras, servicios};
    cuadricula::Cuadricula grilla = CuadriculaDePrueba(1);
};

TEST_F(PreviaDeCuadricula, CadaFormatoPideEscribeRegistraYPregunta) {
    struct Caso {
        std::uint8_t Formato;
        const char *Nombre, *Registro, *Titulo, *Filtro, *Pregunta, *Contiene;
    };
    const Caso casos[]{
        {1, "a.xls", "a.Log", "Crear Archivo EXCEL", "Archivos xls (*.xls)|*.xls",
         "¿Desea Abrir el Archivo con el Excel?|Abrir el Archivo con Excel...", "\xD0\xCF\x11\xE0"},
        {2, "ñandú.htm", "ñandú.Log", "Crear Archivo HTML", "Archivos htm (*.htm)|*.htm",
         "¿Desea Abrir el Archivo con el Internet Explorer?|Abrir el Archivo con el Explorer...",
         "border=\"0\""},
        {3, "c.html", "c.hLog", "Crear Archivo HTML", "Archivos htm (*.htm)|*.htm",
         "¿Desea Abrir el Archivo con el Internet Explorer?|Abrir el Archivo con el Explorer...",
         "border=\"1\""},
        {4, "d.txt", "", "Crear Archivo de Texto", "Archivos txt (*.txt)|*.txt",
         "¿Desea Abrir el Archivo con el Block de Notas?|Abrir el Archivo...", "1250,50\t1300,00"},
        {5, "e", "Log", "Crear Archivo XML", "Archivos xls (*.xml)|*.xml",
         "¿Desea Abrir el Archivo XML?|Abrir el Archivo XML...", "<collection_element>"},
    };
    for (const Caso& caso : casos) {
        const std::filesystem::path archivo = carpeta / caso.Nombre;
        dialogos.Elegidos = {archivo};
        caja.Respuestas = {RespuestaSi};
        const PantallaGuiada vista = Exportar(caso.Formato);
        EXPECT_EQ(estado.FormatoSalida, caso.Formato);
        const PeticionArchivo& peticion = dialogos.Peticiones.back();
        EXPECT_EQ(peticion.Titulo, caso.Titulo);
        EXPECT_EQ(peticion.Filtro, caso.Filtro);
        EXPECT_EQ(peticion.Nombre, "");
        EXPECT_TRUE(peticion.Guardar && peticion.AvisarReemplazo);
        EXPECT_EQ(peticion.Carpeta, carpetas.ReportesExportados());
        EXPECT_EQ(caja.Dicho(), caso.Pregunta);
        EXPECT_EQ(plataforma.Abiertos.back(), archivo);
        EXPECT_NE(LeerArchivo(archivo).find(caso.Contiene), std::string::npos) << caso.Nombre;
        EXPECT_EQ(vista.Esperas, (std::vector<bool>{true, false}));
        EXPECT_TRUE(vista.Cerrada);
        EXPECT_TRUE(*caso.Registro == 0 || Existe(carpeta / caso.Registro)) << caso.Registro;
    }
    EXPECT_FALSE(Existe(carpeta / "d.Log"));
}

TEST_F(PreviaDeCuadricula, CancelarNoHaceNadaYLaFallaSeDice) {
    EXPECT_FALSE(Exportar(CuadriculaExcel).Cerrada);
    EXPECT_TRUE(caja.Mensajes.empty());
    const char* const fallas[]{"Error Creando el Archivo en Excel...", "Error al Crear el Archivo en HTML...",
                               "Error al Crear el Archivo en HTML...", "Error Creando el Archivo...",
                               "Error Creando el Archivo XML..."};
    std::uint8_t formato = 0;
    for (const char* texto : fallas) {
        dialogos.Elegidos = {carpeta / "no existe" / "tabla.xls"};
        const PantallaGuiada vista = Exportar(++formato);
        EXPECT_EQ(caja.Dicho(), texto + std::string("|Reportes Exportados..."));
        EXPECT_EQ(vista.Esperas.back(), false);
    }
    EXPECT_TRUE(plataforma.Abiertos.empty());
}

TEST_F(PreviaDeCuadricula, PaginasTituloYZoom) {
    for (int i = 0; i < 200; ++i) grilla.Hojas[0].Celdas.Filas.push_back(grilla.Hojas[0].Celdas.Filas[1]);
    aplicacion.NombreProyecto = "torre.los";
    aplicacion.Datos.Proyecto = "Torre";
    VentanaVistaPreviaR ventana(entorno, grilla, "Cargas", documento::Alineacion::Centro, false, nullptr);
    ventana.resize(1000, 760);
    ventana.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&ventana));
    auto* vista = ventana.findChild<VistaPaginas*>();
    auto* pagina = ventana.findChild<QLabel*>("Pagina");
    const int paginas = vista->NumeroPaginas();
    EXPECT_GT(paginas, 4);
    EXPECT_EQ(pagina->text(), QString("1  de  %1").arg(paginas));
    // The whole first page is in sight: its height at this zoom is the view's.
    EXPECT_LT(std::abs(vista->Zoom() - vista->ZoomDePagina()), 0.01);

    auto* modo = ventana.findChild<QComboBox*>("Modo");
    const auto elegir = [modo](ModoDeZoom cual) {
        modo->setCurrentIndex(static_cast<int>(cual));
        Q_EMIT modo->activated(modo->currentIndex());
    };
    elegir(ModoDeZoom::TamanoNormal);
    EXPECT_EQ(vista->Zoom(), 100);
    elegir(ModoDeZoom::Porcentaje);
    auto* porcentaje = ventana.findChild<QComboBox*>("Porcentaje");
    for (int i = 0; i < porcentaje->count(); ++i) {
        porcentaje->setCurrentIndex(i);
        Q_EMIT porcentaje->activated(i);
        EXPECT_EQ(vista->Zoom(), PorcentajesDeZoom[static_cast<std::size_t>(i)]);
    }
    elegir(ModoDeZoom::MultiplesPaginas);
    const double cuatro = vista->Zoom();
    elegir(ModoDeZoom::PaginaEntera);
    EXPECT_GT(vista->Zoom(), 1.8 * cuatro);

    vista->IrAPagina(paginas - 1);
    EXPECT_EQ(pagina->text(), QString("%1  de  %1").arg(paginas));
    auto* titulo = ventana.findChild<QLineEdit*>("Titulo");
    EXPECT_EQ(titulo->text(), "Cargas");
    Escribir(titulo, "Otros pesos");
    vista->Buscar("Otros pesos");
    EXPECT_EQ(vista->NumeroHallazgos(), paginas);
    vista->Buscar("Proyecto: Torre");
    EXPECT_EQ(vista->NumeroHallazgos(), paginas);
    vista->Buscar(QString("Página: %1").arg(paginas));
    EXPECT_EQ(vista->NumeroHallazgos(), 1);
}

TEST_F(PreviaDeCuadricula, ImprimirPreguntaYTomaSusAjustes) {
    VistaPreviaR operaciones(entorno, grilla, "Cargas", documento::Alineacion::Centro, true);
    EXPECT_FALSE(operaciones.Imprimir({.MargenIzquierdo = 1440, .NumeroDePagina = false}, {2, 3}));
    EXPECT_EQ(caja.Dicho(), "¿Imprimir el Reporte?|Reportes del Programa...");
    EXPECT_TRUE(impresoras.Impresos.empty());
    EXPECT_EQ(operaciones.Ajustes().MargenIzquierdo, 800);
    caja.Respuestas = {RespuestaSi};
    EXPECT_TRUE(
        operaciones.Imprimir({.MargenIzquierdo = 1440, .Apaisada = true, .NumeroDePagina = false}, {2, 3}));
    EXPECT_EQ(impresoras.Impresos.size(), 1U);
    const PedidoDeImpresion& pedido = impresoras.Ultimo;
    EXPECT_EQ(std::tuple(pedido.Preguntar, pedido.Paginas.Primera, pedido.Paginas.Ultima),
              std::tuple(false, 2, 3));
    EXPECT_NEAR(impresoras.Papel.MargenIzquierdo, 25.4, 0.01);
    EXPECT_TRUE(impresoras.Papel.Pie.Derecha.empty());
}

/// No number leaves the screen as another one: what would not show again as it stands stays a text.
TEST_F(PreviaDeCuadricula, UnaTablaSaleComoEstaEnLaPantalla) {
    const Separadores locales{".", ","};
    const std::vector<std::pair<const char*, const char*>> celdas{
        {"1.234,50", "1.234,50"}, {"12", "12,00"}, {"1.234", "1.234,00"}, {"-0,5", "-0,50"},
        {"1,2,3", "1,2,3"},       {"007", "007"},  {"1.23", "1.23"},      {"", ""}};
    QStandardItemModel modelo(static_cast<int>(celdas.size()), 2);
    modelo.setHorizontalHeaderLabels({"Ítem", "Peso\nkgf/m²"});
    QTableView tabla;
    tabla.setModel(&modelo);
    for (int fila = 0; fila < modelo.rowCount(); ++fila) {
        modelo.setItem(fila, 0, new QStandardItem("12"));
        auto* numero = new QStandardItem(celdas[static_cast<std::size_t>(fila)].first);
        numero->setTextAlignment(Qt::AlignRight);
        modelo.setItem(fila, 1, numero);
    }
    grilla = CuadriculaDe({{&tabla, "Uno"}, {&tabla, "Dos"}}, locales);
    ASSERT_EQ(grilla.Hojas.size(), 2U);
    const documento::Tabla& leida = grilla.Hojas[1].Celdas;
    EXPECT_EQ(leida.Columnas[1].Titulo, "Peso\nkgf/m²");
    EXPECT_EQ(std::get<std::string>(leida.Filas[0].Celdas[0]), "12");
    for (std::size_t i = 0; i < celdas.size(); ++i)
        EXPECT_EQ(cuadricula::TextoDeCelda(leida, i, 1, locales), celdas[i].second);

    modelo.setRowCount(0);
    grilla = CuadriculaDe({{&tabla, "Uno"}}, locales);
    VentanaVistaPreviaR ventana(entorno, grilla, "Vacía", documento::Alineacion::Centro, false, nullptr);
    auto* vista = ventana.findChild<VistaPaginas*>();
    vista->Buscar("kgf/m²");
    EXPECT_EQ(vista->NumeroHallazgos(), 1);
}

}  // namespace
}  // namespace trabex::prueba
