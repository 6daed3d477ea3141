// Reports in every format, as programs of others read them.

#include <csignal>

#include <sys/resource.h>

#include "ReportePreparado.h"
#include "drawing/Primitivas.h"
#include "reports/montaje/TablaGraficos.h"
#include "reports/montaje/qt/SuperficieQt.h"
#include "reports/salidas/ImagenPng.h"
#include "store/Recordset.h"
#include "support/qt/Ventanas.h"

namespace trabex::prueba {

using namespace documento;
namespace {

class Formatos : public ReportePreparado {
  protected:
    QString Exportado(Reporte& reporte, int codigo, const char* nombre) {
        return QString::fromStdString(LeerArchivo(Exportar(reporte, codigo, nombre)));
    }
    static QString Corrido(QString texto) { return texto.replace(QRegularExpression("\\s+"), " "); }

    QString TextoPdf(Reporte& reporte) {
        return Correr("pdftotext", {"-layout", Ruta(Exportar(reporte, FormatoPdf, "ñandú 1.pdf")), "-"});
    }
    QString TextoHtml(Reporte& reporte) {
        QString texto = Exportado(reporte, FormatoHtml, "r.htm");
        EXPECT_EQ(Correr("tidy", {"-q", "-e", "-utf8", Ruta(carpeta / "r.htm")}), "");
        texto.remove(QRegularExpression("<style.*</style>", QRegularExpression::DotMatchesEverythingOption));
        texto.replace(QRegularExpression("<[^>]*>"), " ");
        return texto.replace("&lt;", "<").replace("&gt;", ">").replace("&quot;", "\"").replace("&amp;", "&");
    }
    QString TextoRtf(Reporte& reporte) {
        return Correr("unrtf", {"--text", Ruta(Exportar(reporte, FormatoRtf, "r.rtf"))});
    }
};

TEST_F(Formatos, LaCabeceraSeRepiteYLasPaginasSeCuentan) {
    Losa larga = LosaUniforme(80, 4.85, 290, 90);
    larga.Nombre =
        "Losa larguísima del entrepiso nº 2, ala norte, entre los ejes A’ y Ñ, junto al patio de luces";
    Preparar({larga});
    Reporte reporte = Abrir("ResultadosLosa.rpt");
    QStringList paginas = TextoPdf(reporte).split('\f', Qt::SkipEmptyParts);
    ASSERT_GT(paginas.size(), 3);
    const QRegularExpression fila("^ *\\d+ +\\d+ +\\d+ +4,85 ", QRegularExpression::MultilineOption);
    int conFilas = 0;
    for (int i = 0; i < paginas.size(); ++i) {
        EXPECT_TRUE(paginas[i].contains(QString("Página %1 de %2").arg(i + 1).arg(paginas.size())));
        EXPECT_EQ(paginas[i].contains("(continuación)"), i > 1);  // of a slab whose first page is the second
        if (!paginas[i].contains(fila)) continue;
        ++conFilas;
        EXPECT_TRUE(paginas[i].contains("Máximo del tramo")) << i;
    }
    EXPECT_GE(conFilas, 2);
    EXPECT_TRUE(Corrido(paginas.join(' ')).contains(QString::fromStdString(larga.Nombre)));
}

TEST_F(Formatos, ElPdfLlevaSusLetrasYSuTitulo) {
    Preparar({LosaUniforme(3, 5, 300, 100)});
    for (const auto& [pagina, medida] :
         {std::pair("A4 apaisada", "841.89 x 595.276"), std::pair("A4", "595.276 x 841.89"),
          std::pair("Carta apaisada", "792 x 612"), std::pair("Carta", "612 x 792")}) {
        Reporte reporte = Abrir("titulo \"{Generales.Titulo}\"\nautor \"{Generales.Calculista}\"\npagina " +
                                std::string(pagina) + "\nparrafo \"Ñandú ½ · cm² 漢\"\n");
        const QString archivo = Ruta(Exportar(reporte, FormatoPdf, "a.pdf"));
        const QString datos = Correr("pdfinfo", {archivo});
        EXPECT_TRUE(datos.contains(QRegularExpression("Title: +ANALISIS Y DISEÑO DE LOSAS")))
            << datos.toStdString();
        EXPECT_TRUE(datos.contains(QRegularExpression("Author: +Ing. José Ñáñez"))) << datos.toStdString();
        EXPECT_TRUE(datos.contains(medida)) << datos.toStdString();
        EXPECT_TRUE(Correr("pdfinfo", {"-meta", archivo}).contains("Ing. José Ñáñez"));
        const QStringList letras = Correr("pdffonts", {archivo}).split('\n', Qt::SkipEmptyParts).mid(2);
        ASSERT_FALSE(letras.isEmpty());
        for (const QString& letra : letras)
            EXPECT_TRUE(letra.contains(QRegularExpression("yes +(yes|no) +yes"))) << letra.toStdString();
        EXPECT_TRUE(Correr("pdftotext", {archivo, "-"}).contains("Ñandú ½ · cm²"));
    }
}

/// A picture of 5 by 3 pixels, as the toolkit makes it a bitmap: of 24 bits, or of 8 with a palette.
QImage Pixeles() {
    QImage imagen(5, 3, QImage::Format_RGB32);
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x) imagen.setPixelColor(x, y, QColor(50 * x + 10 * y, 90 * y, 0x40));
    return imagen;
}

Bytes Mapa(bool conPaleta) {
    QBuffer archivo;
    archivo.open(QIODevice::WriteOnly);
    Pixeles()
        .convertToFormat(conPaleta ? QImage::Format_Indexed8 : QImage::Format_RGB32)
        .save(&archivo, "BMP");
    const auto* datos = reinterpret_cast<const std::byte*>(archivo.data().constData());
    return {datos, datos + archivo.size()};
}

void ComprobarPixeles(const QImage& imagen) {
    ASSERT_EQ(imagen.size(), QSize(5, 3));
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 5; ++x) EXPECT_EQ(imagen.pixel(x, y), Pixeles().pixel(x, y));
}

TEST_F(Formatos, LosGraficosLleganPuntoPorPunto) {
    Preparar({});
    Conexion conexion;
    AbrirConexion(conexion, base);
    Recordset graficos;
    AbrirRecordset(conexion, graficos, "Grafico");
    const std::vector<Bytes> archivos{Mapa(false), Mapa(true), Bytes(100)};
    for (std::size_t i = 0; i < archivos.size(); ++i) {
        graficos.AgregarNuevo();
        graficos.Poner("Numero", static_cast<std::int16_t>(i + 1));
        graficos.Poner("Nombre", "L'1");
        graficos.Poner("Losa", "L'1: GEOMETRÍA DE LA LOSA");
        graficos.Poner("Grafico", archivos[i]);
        ASSERT_TRUE(graficos.Actualizar());
    }
    Reporte reporte = Abrir("Grafico.rpt");
    const QString html = Exportado(reporte, FormatoHtml, "g.htm");
    auto imagenes = QRegularExpression("base64,([^\"]*)\"").globalMatch(html);
    for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(imagenes.hasNext());
        ComprobarPixeles(QImage::fromData(QByteArray::fromBase64(imagenes.next().captured(1).toLatin1())));
    }
    EXPECT_TRUE(html.contains(ImagenIlegible));
    const QString pdf = Ruta(Exportar(reporte, FormatoPdf, "g.pdf"));
    Correr("pdfimages", {"-png", pdf, Ruta(carpeta / "imagen")});
    ComprobarPixeles(QImage(Ruta(carpeta / "imagen-000.png")));
    ComprobarPixeles(QImage(Ruta(carpeta / "imagen-001.png")));
    EXPECT_EQ(Correr("pdftotext", {pdf, "-"}).count("L'1: GEOMETRÍA DE LA LOSA"), 3);
    const QString rtf = Exportado(reporte, FormatoRtf, "g.rtf");
    QString cifras = rtf.mid(rtf.indexOf("89504e47"));
    ComprobarPixeles(QImage::fromData(QByteArray::fromHex(cifras.left(cifras.indexOf('}')).toLatin1())));
}

TEST_F(Formatos, LosDibujosLleganAlPdfComoTrazos) {
    Preparar({});
    Conexion conexion;
    AbrirConexion(conexion, base);
    montaje::TablaGraficos tabla(conexion);
    for (const char* nombre : {"L1", "L2"}) {
        montaje::qt::SuperficieQt superficie;
        superficie.Dibujar(15 * 400, 15 * 300, [&](dibujo::Lienzo& lienzo) {
            lienzo.Limpiar();
            lienzo.PonerFuente({"Tahoma", 12, true});
            dibujo::DibujeTexto(lienzo, "MU (kgf-m): Ñ 漢", 20, 20, 0);
            dibujo::DibujeTexto(lienzo, "parado", 20, 200, 90);
            lienzo.Circulo({300, 200}, 50, dibujo::Pluma{}, dibujo::Color{200, 0, 0});
        });
        tabla.Agregar(nombre, nombre, superficie.Imagen());
    }
    conexion.Cerrar();
    Reporte reporte = Abrir("Grafico.rpt");
    const QString pdf = Ruta(Exportar(reporte, FormatoPdf, "g.pdf"));
    const QString texto = Correr("pdftotext", {"-layout", pdf, "-"});
    EXPECT_EQ(texto.count("MU (kgf-m): Ñ 漢"), 2) << texto.toStdString();
    EXPECT_EQ(texto.count("parado"), 2);
    EXPECT_EQ(Correr("pdfimages", {"-list", pdf}).count('\n'), 2);  // its heading alone
    EXPECT_LT(QFileInfo(pdf).size(), 60000);
    const QString indice = Correr("pdftohtml", {"-xml", "-i", "-stdout", pdf});
    EXPECT_TRUE(indice.contains(
        QRegularExpression("<outline>.*L1.*L2.*</outline>", QRegularExpression::DotMatchesEverythingOption)))
        << indice.toStdString();
    // As another program paints it: the circle's colour in its middle.
    Correr("pdftoppm", {"-r", "72", "-png", "-f", "1", "-l", "1", pdf, Ruta(carpeta / "hoja")});
    const QImage hoja(Ruta(carpeta / "hoja-1.png"));
    ASSERT_FALSE(hoja.isNull());
    int rojos = 0;
    for (int y = 0; y < hoja.height(); ++y) {
        for (int x = 0; x < hoja.width(); ++x) rojos += hoja.pixel(x, y) == qRgb(200, 0, 0);
    }
    EXPECT_GT(rojos, 3000);
}

TEST_F(Formatos, UnaFotoDeArchivoVaTalCual) {
    Preparar({});
    QImage foto(64, 48, QImage::Format_RGB32);
    foto.fill(QColor(10, 120, 200));
    ASSERT_TRUE(foto.save(Ruta(carpeta / "foto ñ.jpg"), "JPG", 90));
    const std::string bytes = LeerArchivo(carpeta / "foto ñ.jpg");
    Reporte reporte =
        Abrir("titulo \"t\"\nimagen \"foto ñ.jpg\" ancho 50 pie \"p\"\nimagen \"no está.png\"\n");
    const QString html = Exportado(reporte, FormatoHtml, "f.htm");
    EXPECT_TRUE(html.contains("data:image/jpeg;base64," + QByteArray::fromStdString(bytes).toBase64()));
    EXPECT_EQ(html.count(ImagenIlegible), 1);
    EXPECT_TRUE(LeerArchivo(Exportar(reporte, FormatoRtf, "f.rtf")).find("\\jpegblip\\picw64\\pich48") !=
                std::string::npos);
    for (const auto& [codigo, nombre] : {std::pair(FormatoXls, "f.xls"), std::pair(FormatoPdf, "f.pdf")})
        EXPECT_NE(LeerArchivo(Exportar(reporte, codigo, nombre)).find(bytes.substr(2, 400)),
                  std::string::npos);
    EXPECT_TRUE(Correr("pdfimages", {"-list", Ruta(carpeta / "f.pdf")}).contains("jpeg"));
}

TEST(ImagenPng, UnMapaRecortadoOAlteradoNoSeLee) {
    for (const bool conPaleta : {false, true}) {
        const Bytes entero = Mapa(conPaleta);
        for (std::size_t largo = 0; largo < entero.size(); ++largo)
            EXPECT_FALSE(
                LeerMapaDeBits(Bytes(entero.begin(), entero.begin() + static_cast<std::ptrdiff_t>(largo))));
        for (std::size_t i = 0; i < 54; ++i) {
            Bytes alterado = entero;
            for (const int byte : {0, 1, 0x7F, 0xFF}) {
                alterado[i] = static_cast<std::byte>(byte);
                LeerMapaDeBits(alterado);
            }
        }
    }
}

TEST_F(Formatos, LosTextosHostilesSalenComoEstan) {
    Losa losa = LosaUniforme(2, 5, 300, 100);
    losa.Nombre = "L'1 <b>&amp;\\par{}\" \tΩ≤ {{pagina}}";
    losa.Ejes[1].Eje = "b{\\";
    losa.Ejes[2].Eje = "<i>";
    Preparar({losa});
    Reporte reporte = Abrir("ResultadosLosa.rpt");
    for (const QString& texto : {TextoPdf(reporte), TextoHtml(reporte)}) {
        const QString corrido = Corrido(texto);
        EXPECT_TRUE(corrido.contains("L'1 <b>&amp;\\par{}\" Ω≤ {{pagina}}")) << corrido.toStdString();
        EXPECT_TRUE(corrido.contains(" 1 b{\\ <i> 5,00 "));
    }
    EXPECT_TRUE(Corrido(TextoRtf(reporte)).contains(" 1 b{\\ <i> 5,00 "));
}

/// Files can grow to so many bytes and no more, as on a full disk.
class DiscoLleno {
  public:
    explicit DiscoLleno(rlim_t bytes) {
        std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &antes_);
        const rlimit limite{bytes, antes_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limite);
    }
    ~DiscoLleno() { setrlimit(RLIMIT_FSIZE, &antes_); }

  private:
    rlimit antes_{};
};

TEST_F(Formatos, CanceladoOSinDiscoOSinPermisoQuedaElReporteAnterior) {
    Preparar({LosaUniforme(40, 5, 300, 100)});
    Reporte reporte = Abrir("ResultadosLosa.rpt");
    const std::filesystem::path destino = carpeta / "anterior";
    for (const int codigo : {FormatoPdf, FormatoHtml, FormatoRtf, FormatoXls}) {
        EscribirArchivo(destino, "anterior");
        const std::size_t archivos = ArchivosDe(carpeta.Camino()).size();
        double ultima = -1;
        const auto seguir = [&](double parte) { return std::exchange(ultima, parte) < 0; };
        EXPECT_THROW(motor.Exportar(reporte.Contenido(), codigo, destino, seguir), TrabajoCancelado);
        EXPECT_GT(ultima, 0);
        const int error = CodigoDe([&, cual = codigo] {
            const DiscoLleno lleno(6000);
            Exportar(reporte, cual, "anterior");
        });
        EXPECT_EQ(error, 61) << codigo;
        EXPECT_EQ(LeerArchivo(destino), "anterior");
        EXPECT_EQ(ArchivosDe(carpeta.Camino()).size(), archivos) << codigo;  // no half file
        std::filesystem::remove(destino);
        std::filesystem::create_directories(destino / "ocupada");
        EXPECT_THROW(Exportar(reporte, codigo, "anterior"), ErrorEjecucion);
        EXPECT_TRUE(Existe(destino / "ocupada") && !Existe(carpeta / "anterior.nuevo"));
        std::filesystem::remove_all(destino);
    }
    EXPECT_THROW(Exportar(reporte, 99, "x"), ErrorEjecucion);
}

}  // namespace
}  // namespace trabex::prueba
