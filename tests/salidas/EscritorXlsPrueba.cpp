#include <gmock/gmock.h>

#include "reports/salidas/EscritorXls.h"
#include "reports/salidas/ImagenDePaleta.h"
#include "reports/salidas/ImagenPng.h"
#include "support/VolcadoXls.h"

namespace trabex::prueba {

using namespace documento;
using namespace salidas;
namespace {

using testing::Contains;
using testing::StartsWith;

Documento DocumentoDePrueba() {
    Documento documento;
    documento.Titulo = "ANÁLISIS";
    documento.Papel.Apaisada = true;
    documento.Papel.Pie = {"A & B", "", std::string("Página ") + MarcaPagina + " de " + MarcaPaginas};
    Seccion& seccion = documento.Secciones.emplace_back();
    seccion.Nombre = "LOSA: N+3.00";
    seccion.Bloques.emplace_back(Titulo{1, "LOSA N+3.00"});
    seccion.Bloques.emplace_back(Ficha{2,
                                       {{"Concreto", Valor{std::int16_t{250}}, "0", "kgf/cm²"},
                                        {"Tipo", Valor{true}, "Maciza|Nervada", ""},
                                        {"Fecha", Valor{Fecha(std::chrono::year(2024) / 2 / 29)}, "", ""}}});
    Tabla tabla;
    tabla.Columnas = {{"Eje", "", "", 15, Alineacion::Centro},
                      {"M", "Apoyo A", "#,##0", 20, Alineacion::Derecha},
                      {"V", "Apoyo A", "0.00", 20, Alineacion::Derecha}};
    tabla.Filas = {{{Valor{std::string("A")}, Valor{-1234567.5}, Valor{12.345}}, false},
                   {{Valor{}, Valor{std::int32_t{7}}, Valor{}}, true}};
    tabla.Estilo.Filtros = true;
    seccion.Bloques.emplace_back(tabla);
    return documento;
}

TEST(EscritorXls, NumerosYFechasSiguenSiendoloConSusFormatos) {
    const auto lineas = VolcarXls(LibroDe(DocumentoDePrueba()));
    EXPECT_THAT(lineas, Contains(StartsWith("1,2 250.0 [0\" kgf/cm²\",Arial,9,b,h1")));
    EXPECT_THAT(lineas, Contains(StartsWith("2,2 'Maciza'")));
    EXPECT_THAT(lineas, Contains(StartsWith("3,2 datetime.date(2024, 2, 29) [dd/mm/yyyy")));
    EXPECT_THAT(lineas, Contains("combinada 5:6 1:3"));  // the group's title over its two columns
    EXPECT_THAT(lineas, Contains(StartsWith("7,1 -1234567.5 [#,##0,Arial,9,h3")));
    EXPECT_THAT(lineas, Contains(StartsWith("7,2 12.345 [0.00")));
    EXPECT_THAT(lineas, Contains(StartsWith("8,1 7.0 [#,##0,Arial,9,b")));
    EXPECT_THAT(lineas, Contains("hoja LOSA  N+3.00 9x3 fijas 7"));
    EXPECT_THAT(lineas, Contains("_FilterDatabase (6, 9, 0, 3)"));  // of the columns' titles
}

TEST(EscritorXls, LosGraficosSeGuardanComoImagenesYDejanSuSitio) {
    const std::vector<std::uint32_t> pixeles(20000, 0x336699);
    const Bytes mapa = MapaDeBitsDe(ReducirColores(pixeles, 200, 100));
    Documento documento;
    Seccion& seccion = documento.Secciones.emplace_back();
    seccion.Bloques.emplace_back(Imagen{[&mapa] { return Bytes(mapa); }, 100, 0, "L1: GEOMETRÍA"});
    seccion.Bloques.emplace_back(Imagen{[] { return Bytes{}; }, 0, 0, ""});
    const LibroXls libro = LibroDe(documento);
    ASSERT_EQ(libro.Hojas[0].Imagenes.size(), 1U);
    const ImagenXls& imagen = libro.Hojas[0].Imagenes[0];
    EXPECT_THAT(imagen.Leer(), StartsWith("\x89PNG"));
    EXPECT_NEAR(imagen.Ancho, 2 * imagen.Alto, 0.01);
    EXPECT_NEAR(imagen.Ancho, 100 * 72 / 25.4, 0.01);
    const auto lineas = VolcarXls(libro);
    EXPECT_THAT(lineas, Contains(StartsWith("13,0 'L1: GEOMETRÍA'")));
    EXPECT_THAT(lineas, Contains(StartsWith("14,0 '" + std::string(ImagenIlegible) + "'")));
}

TEST(ImagenDePaleta, LaCompresionDevuelveLosMismosPixeles) {
    // Rows of every kind: one colour, alternating, runs of each length, and more colours than a palette
    // holds.
    const std::size_t ancho = 611;
    std::vector<std::uint32_t> pixeles;
    for (std::size_t x = 0; x < ancho; ++x) pixeles.push_back(0xFFFFFF);
    for (std::size_t x = 0; x < ancho; ++x) pixeles.push_back(x % 2 == 0 ? 0xFF0000 : 0x0000FF);
    for (std::size_t x = 0, tramo = 1; x < ancho; ++tramo) {
        for (std::size_t k = 0; k < tramo && x < ancho; ++k, ++x)
            pixeles.push_back(static_cast<std::uint32_t>(tramo % 7));
    }
    for (std::size_t x = 0; x < ancho; ++x) pixeles.push_back(0x808000 + static_cast<std::uint32_t>(x));
    const ImagenDePaleta reducida = ReducirColores(pixeles, ancho, 4);
    ASSERT_EQ(reducida.Paleta.size(), 256U);
    const Bytes archivo = MapaDeBitsDe(reducida);
    const auto leida = LeerMapaDeBits(archivo);
    ASSERT_TRUE(leida);
    for (std::size_t i = 0; i < pixeles.size(); ++i) {
        const auto color = static_cast<std::uint32_t>(
            leida->Pixeles[3 * i] << 16 | leida->Pixeles[3 * i + 1] << 8 | leida->Pixeles[3 * i + 2]);
        EXPECT_EQ(color, reducida.Paleta[reducida.Pixeles[i]]) << i;
    }
    // Colours of the first three rows are the most frequent ones, and so their own.
    for (std::size_t i = 0; i < 3 * ancho; ++i)
        EXPECT_EQ(reducida.Paleta[reducida.Pixeles[i]], pixeles[i]) << i;
    // Cut anywhere, it is either refused or unreadable, and nothing is read past its end.
    for (std::size_t largo = 0; largo < archivo.size(); largo += 7)
        EXPECT_FALSE(
            MapaSinComprimir(Bytes(archivo.begin(), archivo.begin() + static_cast<std::ptrdiff_t>(largo))));
}

}  // namespace
}  // namespace trabex::prueba
