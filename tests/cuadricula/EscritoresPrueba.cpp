// What each kind of exported file holds, told by another program that reads it.

#include <gmock/gmock.h>

#include "base/Archivos.h"
#include "base/Marcado.h"
#include "reports/cuadricula/CuadriculaHtml.h"
#include "reports/cuadricula/CuadriculaXls.h"
#include "reports/cuadricula/CuadriculaXml.h"
#include "reports/cuadricula/DocumentoDeCuadricula.h"
#include "reports/cuadricula/TextoTabulado.h"
#include "support/CuadriculaDePrueba.h"
#include "support/VolcadoXls.h"

namespace trabex::prueba {

using namespace cuadricula;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

class Escritores : public testing::Test {
  protected:
    /// The lines that a command prints of a file.
    std::vector<std::string> Lineas(const std::string& orden) const {
        const auto salida = carpeta / "salida";
        EXPECT_EQ(std::system((orden + " > '" + salida.string() + "'").c_str()), 0) << orden;
        std::istringstream texto(LeerArchivo(salida));
        std::vector<std::string> lineas;
        for (std::string linea; std::getline(texto, linea);) lineas.push_back(linea);
        return lineas;
    }
    std::vector<std::string> Leer(const std::string& clase) const {
        return Lineas(TRABEX_PYTHON " " TRABEX_LEER_CUADRICULA " " + clase + " '" + archivo.string() + "'");
    }
    CarpetaTemporal carpeta;
    std::filesystem::path archivo = carpeta / "tabla";
};

TEST_F(Escritores, TextoTabuladoConservaCadaCelda) {
    EscribirTabulado(CuadriculaDePrueba(1), archivo);
    EXPECT_THAT(Leer("txt"), ElementsAre(R"(['', 'Descripción', 'Peso kgf/m² Mínimo', 'Peso kgf/m² Máximo'])",
                                         R"(['1', 'Ñandú "a"\tb\n<c> & \'d\'', '1250,50', '1300,00'])",
                                         R"(['dos & "2"', '=SUMA(A1)', '-0,25', ''])"));
    EscribirTabulado(CuadriculaDePrueba(2), archivo);
    EXPECT_THAT(Leer("txt"), testing::SizeIs(7));
    EscribirTabulado({}, archivo);
    EXPECT_THAT(Leer("txt"), testing::IsEmpty());
}

TEST_F(Escritores, XmlBienFormadoConCualquierTexto) {
    EscribirXml(CuadriculaDePrueba(1), archivo);
    EXPECT_THAT(Leer("xml"),
                ElementsAre("['root_element']",
                            R"(['collection_element', '=1', 'Descripción=Ñandú "a"\tb\n<c> & \'d\'', )"
                            R"('Peso kgf/m² Mínimo=1250,50', 'Peso kgf/m² Máximo=1300,00'])",
                            R"(['collection_element', '=dos & "2"', 'Descripción==SUMA(A1)', )"
                            R"('Peso kgf/m² Mínimo=-0,25', 'Peso kgf/m² Máximo='])"));
    Cuadricula raras = CuadriculaDePrueba(2);
    raras.Hojas[1].Celdas.Columnas[0].Titulo = "\"<\x01&\xFF";
    raras.Hojas[1].Celdas.Filas[0].Celdas[0] = std::string("\x0B\xEF\xBF\xBF\xED\xA0\x80]]>");
    EscribirXml(raras, archivo);
    EXPECT_THAT(Leer("xml")[3], StartsWith("['collection_element', 'Lista 2', '=1', '\"< &\uFFFD= \uFFFD"));
    EscribirXml({}, archivo);
    EXPECT_THAT(Leer("xml"), ElementsAre("['root_element']"));
}

TEST_F(Escritores, LibroConBordesNumerosYFilasDeTitulos) {
    const std::vector<std::string> una = VolcarXls(LibroDe(CuadriculaDePrueba(1)));
    EXPECT_EQ(una[0], "hoja Hoja1 4x4 fijas 2");
    EXPECT_THAT(una, Contains("combinada 0:1 2:4"));
    EXPECT_THAT(una, Contains("combinada 0:2 1:2"));
    EXPECT_THAT(una, Contains(StartsWith("2,0 '1' [")));
    EXPECT_THAT(una, Contains(StartsWith(R"(2,1 'Ñandú "a"\tb\n<c> & \'d\'' [)")));
    EXPECT_THAT(una, Contains(testing::AllOf(StartsWith("2,2 1250.5 [0.00"), HasSubstr("bordes1111"))));
    EXPECT_THAT(una, Contains(testing::AllOf(StartsWith("3,3 '' ["), HasSubstr("bordes1111"))));
    const std::vector<std::string> dos = VolcarXls(LibroDe(CuadriculaDePrueba(2)));
    EXPECT_THAT(dos, Contains(StartsWith("hoja Hoja2 4x4")));
    // The column of row headings: 20 mm as on the grid, and the fixed width on a grid of two sheets.
    const auto ancho = [](const std::vector<std::string>& volcado) {
        for (const std::string& linea : volcado)
            if (linea.starts_with("ancho 0 ")) return std::stod(linea.substr(8));
        return 0.0;
    };
    EXPECT_NEAR(ancho(dos) / ancho(una), 1.5, 0.1);
}

TEST_F(Escritores, HtmlSegunTidyConYSinBordes) {
    for (const int hojas : {0, 1, 2}) {
        for (const bool borde : {false, true}) {
            Cuadricula grilla = CuadriculaDePrueba(hojas);
            if (hojas == 2) grilla.Hojas[1].Celdas.Filas.clear();
            EscribirHtml(grilla, borde, archivo);
            EXPECT_THAT(Lineas("tidy -q -e -utf8 '" + archivo.string() + "' 2>&1"), testing::IsEmpty());
            const std::string texto = LeerArchivo(archivo);
            EXPECT_EQ(texto.find("border=\"1\"") != std::string::npos, borde && hojas > 0);
        }
    }
    EXPECT_THAT(LeerArchivo(archivo), HasSubstr("Ñandú &quot;a&quot;\tb<br>&lt;c&gt; &amp; 'd'"));
}

TEST_F(Escritores, UnRotuloAbarcaLasColumnasQueLeSiguen) {
    Cuadricula grilla = CuadriculaDePrueba(1);
    HojaDeCuadricula& hoja = grilla.Hojas[0];
    hoja.Celdas.Filas[1] = {{std::string("CENTRO")}, true, true};
    const std::vector<std::string> libro = VolcarXls(LibroDe(grilla));
    EXPECT_THAT(libro, Contains("combinada 3:4 1:4"));  // after the column of row headings
    EscribirHtml(grilla, true, archivo);
    EXPECT_THAT(LeerArchivo(archivo), HasSubstr("<td class=\"i\" colspan=\"3\">CENTRO</td></tr>"));
    hoja.Cabeceras.clear();
    const documento::Documento pagina = DocumentoDe(grilla, {}, {});
    EXPECT_EQ(std::get<documento::Tabla>(pagina.Secciones[0].Bloques[0]).Columnas.size(), 3U);
}

TEST(Pagina, CabezaMargenesYPieDeLaCuadricula) {
    MembreteDeCuadricula membrete{.Titulo = "Pesos", .Usuario = "ING. NÚÑEZ", .Proyecto = "Torre"};
    const documento::Documento hoja = DocumentoDe(CuadriculaDePrueba(2), membrete, {.Apaisada = true});
    ASSERT_EQ(hoja.Papel.Membrete.size(), 3U);
    const std::array<std::pair<const char*, double>, 3> lineas{
        {{"Pesos", 18}, {"ING. NÚÑEZ", 10}, {"Proyecto: Torre", 16}}};
    for (std::size_t i = 0; i < lineas.size(); ++i) {
        EXPECT_EQ(hoja.Papel.Membrete[i].Texto, lineas[i].first);
        EXPECT_EQ(hoja.Papel.Membrete[i].Puntos, lineas[i].second);
        EXPECT_TRUE(hoja.Papel.Membrete[i].Negrita);
    }
    EXPECT_EQ(hoja.Papel.Pie.Derecha, std::string("Página: ") + documento::MarcaPagina);
    // 800 twips are 0.5556 inches, 1200 are 0.8333.
    EXPECT_NEAR(hoja.Papel.MargenIzquierdo, 14.11, 0.01);
    EXPECT_NEAR(hoja.Papel.MargenSuperior, 14.11, 0.01);
    EXPECT_NEAR(hoja.Papel.MargenInferior, 21.17, 0.01);
    EXPECT_TRUE(hoja.Papel.Apaisada);
    EXPECT_EQ(hoja.Secciones.size(), 2U);
    EXPECT_EQ(std::get<documento::Tabla>(hoja.Secciones[0].Bloques[0]).Columnas.size(), 4U);

    membrete.Usuario.clear();
    const documento::Documento sola =
        DocumentoDe(CuadriculaDePrueba(1), membrete, {.CabecerasDeFilas = false, .NumeroDePagina = false});
    EXPECT_EQ(sola.Papel.Membrete.back().Texto, "proyecto: Torre");
    EXPECT_TRUE(sola.Papel.Pie.Derecha.empty());
    EXPECT_EQ(std::get<documento::Tabla>(sola.Secciones[0].Bloques[0]).Columnas.size(), 3U);
}

}  // namespace
}  // namespace trabex::prueba
