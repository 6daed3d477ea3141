#include <limits>

#include <gmock/gmock.h>

#include "base/Archivos.h"
#include "reports/xls/LibroXls.h"
#include "support/VolcadoXls.h"

namespace trabex {

using namespace xls;
namespace {

using testing::Contains;
using testing::StartsWith;
using namespace std::chrono;

TEST(LibroXls, ValoresYEstilosSeLeenComoSeEscribieron) {
    LibroXls libro;
    HojaXls& hoja = libro.Hojas.emplace_back();
    hoja.Nombre = "Resultados";
    const auto titulo = EstiloDe(libro, {.Fuente = "Times New Roman",
                                         .Puntos = 14,
                                         .Negrita = true,
                                         .Cursiva = true,
                                         .Color = 0x123456,
                                         .Alineacion = AlineacionXls::Centro,
                                         .Vertical = VerticalXls::Centro,
                                         .AjustarTexto = true,
                                         .Relleno = 0xABCDEF});
    const auto dos = EstiloDe(
        libro, {.Formato = "0.00",
                .Alineacion = AlineacionXls::Derecha,
                .Bordes = {BordeXls::Fino, BordeXls::Medio, BordeXls::Doble, BordeXls::Grueso, 0x654321}});
    const auto miles = EstiloDe(libro, {.Formato = "#,##0"});
    const auto dia = EstiloDe(libro, {.Formato = "yyyy-mm-dd"});
    CeldaEn(hoja, 0, 0) = {"LOSA ÑANDÚ — Σ\U0001F3D7", titulo};
    CeldaEn(hoja, 1, 1) = {-2.675, dos};
    CeldaEn(hoja, 1, 2) = {1234567.0, miles};
    CeldaEn(hoja, 2, 0) = {Fecha(year(2024) / 2 / 29), dia};
    CeldaEn(hoja, 2, 1) = {Fecha(year(1900) / 1 / 1), 0};
    CeldaEn(hoja, 2, 2) = {Fecha(year(1899) / 12 / 31), 0};
    CeldaEn(hoja, 3, 0) = {std::numeric_limits<double>::quiet_NaN(), dos};
    CeldaEn(hoja, 3, 1) = {std::string("con\xFFmal"), 0};
    hoja.Anchos = {105, 0, 52.5};
    hoja.Filas[0].Alto = 30;
    hoja.Combinadas = {{0, 0, 0, 2}};
    hoja.SaltosDePagina = {2};
    hoja.FilasFijas = 1;

    const auto lineas = prueba::VolcarXls(libro);
    EXPECT_THAT(
        lineas,
        testing::ElementsAre(
            "hoja Resultados 4x3 fijas 1", "ancho 0 5120", "ancho 1 2341", "ancho 2 2560", "alto 0 600",
            "combinada 0:1 0:3", "saltos 2",
            "0,0 'LOSA ÑANDÚ — Σ\U0001F3D7' [General,Times New Roman,14,b,i,h2v1w1,fondoABCDEF,letra123456]",
            "1,1 -2.675 [0.00,Arial,10,h3v2w0,bordes1265]", "1,2 1234567.0 [#,##0,Arial,10,h0v2w0]",
            "2,0 datetime.date(2024, 2, 29) [yyyy-mm-dd,Arial,10,h0v2w0]",
            "2,1 datetime.date(1900, 1, 1) [dd/mm/yyyy,Arial,10,h0v2w0]",
            "2,2 '31/12/1899' [General,Arial,10,h0v2w0]", "3,0 '' [0.00,Arial,10,h3v2w0,bordes1265]",
            "3,1 'con\uFFFDmal' [General,Arial,10,h0v2w0]"));
}

TEST(LibroXls, TextosQueCruzanElFinDeUnRegistroSeLeenEnteros) {
    LibroXls libro;
    HojaXls& hoja = libro.Hojas.emplace_back();
    // Lengths by steps of one bring the record's end to every place of a text, in both widths.
    std::vector<std::string> textos;
    for (std::size_t i = 0; i < 300; ++i) {
        std::string texto = std::to_string(i) + std::string(170 + i % 40, static_cast<char>('a' + i % 26));
        if (i % 3 == 0) texto += "Ω" + std::string(i % 7, 'z');
        textos.push_back(texto);
    }
    textos.emplace_back(40000, 'x');
    textos.emplace_back();
    for (std::size_t i = 0; i < textos.size(); ++i) CeldaEn(hoja, i, 0).Valor = textos[i];
    for (std::size_t i = 0; i < textos.size(); ++i) CeldaEn(hoja, i, 1).Valor = textos[i];
    textos[300].resize(32767);

    const auto lineas = prueba::VolcarXls(libro);
    ASSERT_EQ(lineas.size(), 2 + 2 * textos.size());
    for (std::size_t i = 0; i < textos.size(); ++i) {
        for (std::size_t c = 0; c < 2; ++c)
            ASSERT_THAT(lineas[2 + 2 * i + c],
                        StartsWith(std::to_string(i) + "," + std::to_string(c) + " '" + textos[i] + "'"));
    }
}

TEST(LibroXls, MasFilasDeLasQueCabenSiguenEnOtraHojaConSuEncabezado) {
    LibroXls libro;
    HojaXls& hoja = libro.Hojas.emplace_back();
    hoja.Nombre = "Hoja1";
    hoja.FilasFijas = 1;
    hoja.Filtro = true;
    const std::size_t filas = FilasPorHojaXls + 5;
    for (std::size_t f = 0; f < filas; ++f) CeldaEn(hoja, f, 0).Valor = static_cast<double>(f);
    hoja.Filas[0].Celdas[0].Valor = "No";
    hoja.Combinadas = {{0, 0, 0, 1}, {filas - 1, 0, filas - 1, 1}};
    hoja.Filas[2].Celdas.resize(300);
    hoja.Filas[2].Celdas[299].Valor = 1.0;  // past the last column

    const auto lineas = prueba::VolcarXls(libro);
    EXPECT_EQ(lineas[0], "hoja Hoja1 65536x2 fijas 1");
    const auto segunda =
        std::find_if(lineas.begin() + 1, lineas.end(), [](auto& l) { return l.starts_with("hoja "); });
    EXPECT_THAT(
        std::vector<std::string>(segunda, lineas.end()),
        testing::ElementsAre("hoja Hoja1 (2) 6x2 fijas 1", "combinada 0:1 0:2", "combinada 5:6 0:2",
                             "_FilterDatabase (0, 6, 0, 1)", "saltos ", StartsWith("0,0 'No'"),
                             StartsWith("1,0 65536.0"), StartsWith("2,0 65537.0"), StartsWith("3,0 65538.0"),
                             StartsWith("4,0 65539.0"), StartsWith("5,0 65540.0")));
}

TEST(LibroXls, NombresDeHojaSeAdmitenYNoSeRepiten) {
    LibroXls libro;
    for (const char* nombre :
         {"N+3.00/A", "n+3.00:a", "", "", "Un nombre de hoja que pasa de treinta y un caracteres"})
        libro.Hojas.emplace_back().Nombre = nombre;
    std::vector<std::string> nombres;
    for (const std::string& linea : prueba::VolcarXls(libro)) {
        if (linea.starts_with("hoja ")) nombres.push_back(linea.substr(5, linea.find(" 0x0") - 5));
    }
    EXPECT_THAT(nombres, testing::ElementsAre("N+3.00 A", "n+3.00 a (2)", "Hoja1", "Hoja2",
                                              "Un nombre de hoja que pasa de t"));
}

TEST(LibroXls, UnLibroVacioYUnoConImagenesSeAbren) {
    EXPECT_THAT(prueba::VolcarXls({}), Contains("hoja Hoja1 0x0 fijas 0"));
    LibroXls libro{.Titulo = "Título", .Autor = "ING. NÚÑEZ"};
    HojaXls& hoja = libro.Hojas.emplace_back();
    CeldaEn(hoja, 0, 0).Valor = "antes";
    const auto agregar = [&hoja](const std::string& bytes) {
        hoja.Imagenes.push_back({FichaDe(bytes), [bytes] { return bytes; }, 1, 0, 300, 200});
    };
    agregar(std::string("\x89PNG") + std::string(20000, '\1'));
    agregar("no es imagen");
    agregar("BM" + std::string(9000, '\2'));
    EXPECT_THAT(prueba::VolcarXls(libro), Contains(StartsWith("0,0 'antes'")));
    const prueba::CarpetaTemporal carpeta;
    const auto archivo = carpeta / "libro.xls";
    GuardarXls(libro, archivo);
    const std::string bytes = prueba::LeerArchivo(archivo);
    EXPECT_NE(bytes.find("ING. N"), std::string::npos);
    EXPECT_EQ(bytes.find("no es imagen"), std::string::npos);

    // Given up between two pictures, or with one that is no longer the same: nothing new stands there.
    EXPECT_THROW(GuardarXls(libro, archivo,
                            [](std::size_t hechas, std::size_t) {
                                if (hechas == 1) throw 1;
                            }),
                 int);
    hoja.Imagenes[2].Leer = [] { return std::string("BM otra"); };
    EXPECT_THROW(GuardarXls(libro, archivo), ErrorEjecucion);
    EXPECT_EQ(ArchivosDe(carpeta.Camino()).size(), 1U);
    EXPECT_EQ(prueba::LeerArchivo(archivo), bytes);
}

}  // namespace
}  // namespace trabex
