#include <cmath>

#include <gtest/gtest.h>

#include "drawing/losa/GraficoLosa.h"
#include "drawing/losa/GraficoLosaDatos.h"
#include "drawing/losa/GraficoLosasPrinter.h"
#include "slab/CalcularLosa.h"
#include "support/LienzoGrabador.h"
#include "support/LosasDePrueba.h"

namespace trabex {

using namespace dibujo;
using namespace dibujo::losa;
using namespace losas;
namespace {

using prueba::LienzoGrabador;
using TextoGrabado = LienzoGrabador::TextoGrabado;

constexpr Color FondoCorte{165, 191, 235};

struct Caso {
    explicit Caso(Losa datos) : Datos(std::move(datos)) { CalcularLosa(Datos, Generales, Resultados); }
    LosaCalculada Calculada() const { return {Datos, Generales, Resultados}; }
    void Dibujar(std::uint8_t vista) {
        Hoja.VistaActual = vista;
        RedibujeVista(Lienzo, Hoja, Calculada());
    }

    Losa Datos;
    DatosGenerales Generales;
    ResultadosLosa Resultados;
    HojaLosa Hoja;
    LienzoGrabador Lienzo{1280, 720};
};

struct Ajuste {
    double Longitud;
    double Desnivel;  ///< of the last axis
    double K;
};

class EscalaPrueba : public testing::TestWithParam<Ajuste> {};

TEST_P(EscalaPrueba, ElFactorVaPorLaLongitudTotal) {
    const auto [longitud, desnivel, k] = GetParam();
    Losa losa = prueba::LosaContinua({longitud / 2, longitud / 2}, 300);
    if (desnivel != 0) losa.JuntasD.push_back({3, 0, desnivel});
    Caso caso(losa);
    for (const std::int32_t alto : {720, 3000}) {  // on the tall one the height never limits
        caso.Lienzo = LienzoGrabador(1280, alto);
        caso.Dibujar(VistaGeometria);
        const double porAncho = 1280 * k / longitud;
        const double porAlto = alto * 0.7 / (desnivel == 0 ? 7.5 : std::max(desnivel, 0.0) / 2 + 7.5);
        EXPECT_DOUBLE_EQ(caso.Hoja.Vista.Escala, std::min(porAncho, porAlto));
        EXPECT_EQ(caso.Hoja.Vista.OrigenX, 640);
        EXPECT_EQ(caso.Hoja.Vista.OrigenY,
                  std::nearbyint(std::max(desnivel, 0.0) / 2 * caso.Hoja.Vista.Escala + alto * 0.18));
    }
}

INSTANTIATE_TEST_SUITE_P(Longitudes, EscalaPrueba,
                         testing::Values(Ajuste{5, 0, 0.60}, Ajuste{5, 1, 0.60}, Ajuste{10, 0, 0.65},
                                         Ajuste{10, 1, 0.55}, Ajuste{10, -1, 0.65}, Ajuste{15, 0, 0.70},
                                         Ajuste{15, 1, 0.70}, Ajuste{15.1, 0, 0.75}, Ajuste{80, 2, 0.75}));

TEST(Hojas, ElTextoSigueAlZoomDesdeElUltimoDibujoAEscalaNatural) {
    Caso caso(prueba::LosaContinua({5, 5}, 300, 100));
    const auto letra = [&] {
        caso.Dibujar(VistaGeometria);
        return caso.Lienzo.Hallar("400")->Letra.Puntos;
    };
    EXPECT_DOUBLE_EQ(letra(), 8.5);
    const double base = caso.Hoja.Vista.EscalaBase;
    caso.Hoja.Vista.Zoom = 1.1;
    EXPECT_DOUBLE_EQ(letra(), 8.5 * 1.1);
    caso.Lienzo = LienzoGrabador(640, 360);  // half the scale, but the base scale is still the old one
    EXPECT_NEAR(letra(), 8.5 * 1.1 / 2, 1e-9);
    EXPECT_EQ(caso.Hoja.Vista.EscalaBase, base);
    EXPECT_GE(caso.Lienzo.Hallar("(GEOMETRIA DE LA LOSA)")->Letra.Puntos, 8);
}

TEST(Hojas, SinResultadosODeOtraLosaNoSeDibujanNumeros) {
    Caso caso(prueba::LosaContinua({5, 4}, 300, 150));
    const Losa otra = prueba::LosaContinua({3, 3, 3}, 300);
    for (const ResultadosLosa& ajenos : {ResultadosLosa{}, caso.Resultados}) {
        for (const std::uint8_t vista : {VistaGeometria, VistaFuerzas, VistaDiseno}) {
            caso.Hoja.VistaActual = vista;
            RedibujeVista(caso.Lienzo, caso.Hoja, {otra, caso.Generales, ajenos});
            EXPECT_TRUE(caso.Lienzo.DeColor(FondoCorte).empty());
        }
        EXPECT_NE(caso.Lienzo.Hallar("0,00"), nullptr);
    }
}

TEST(Hojas, UnaLosaSinTramosSoloLimpiaElLienzo) {
    Caso caso(Losa{});
    caso.Dibujar(VistaDiseno);
    EXPECT_EQ(caso.Lienzo.Limpiezas, 1);
    EXPECT_TRUE(caso.Lienzo.Textos.empty());
    EXPECT_FALSE(caso.Lienzo.Lineas.empty());  // the grid
    caso.Hoja.Vista.ExportandoGrafico = true;
    caso.Dibujar(VistaDiseno);
    EXPECT_TRUE(caso.Lienzo.Lineas.empty());
}

struct Pagina {
    double Longitud;
    std::int32_t Ancho, Alto;  ///< A4 and Letter within their margins, 600 units to an inch
    double Escala;
};

class PapelPrueba : public testing::TestWithParam<Pagina> {};

TEST_P(PapelPrueba, LaEscalaTieneTopeYNoLaLimitaElAlto) {
    const auto [longitud, ancho, alto, escala] = GetParam();
    Caso caso(prueba::LosaContinua({longitud / 3, longitud / 3, longitud / 3}, 310, 120));
    caso.Hoja.Vista.Escala = 50;  // as it stands on the screen, with a pan of one metre
    caso.Hoja.Vista.PanX = 50;
    LienzoGrabador pagina(ancho, alto);
    for (const std::uint8_t vista : {VistaGeometria, VistaFuerzas, VistaDiseno}) {
        caso.Hoja.VistaActual = vista;
        GuardeGraficos1(pagina, caso.Hoja, caso.Calculada(), {"MARÍA", "LA CEIBA", "ING. NÚÑEZ"});
        const auto& circulos = pagina.Circulos;
        const double x1 = circulos.front().Puntos[0].x;
        EXPECT_NEAR(x1, ancho / 2.0 + escala * (1 - longitud / 2), 2 + escala);
        for (const char* texto :
             {"Usuario: MARÍA", "PROYECTO: LA CEIBA", "CALCULISTA: ING. NÚÑEZ", "Trabex  versión: 2024"})
            EXPECT_NE(pagina.Hallar(texto), nullptr);
        for (const TextoGrabado& texto : pagina.Textos) EXPECT_EQ(texto.Letra.Nombre, "Arial");
        EXPECT_DOUBLE_EQ(pagina.Hallar(Formato(longitud / 3, "0.00", {}))->Letra.Puntos, 8.5);
        EXPECT_EQ(caso.Hoja.Vista.Escala, 50);
    }
    HojaLosa papel = caso.Hoja;
    RedibujeVista(pagina, papel, caso.Calculada(), HojaEnPapel);
    EXPECT_DOUBLE_EQ(papel.Vista.Escala, escala);
    EXPECT_EQ(papel.Vista.OrigenX, std::nearbyint(ancho / 2.0 + escala));
    EXPECT_EQ(papel.Vista.OrigenY, std::nearbyint(alto * 0.25));
}

INSTANTIATE_TEST_SUITE_P(Paginas, PapelPrueba,
                         testing::Values(Pagina{3, 4393, 6449, 350}, Pagina{12, 4393, 6449, 0.7 * 4393 / 12},
                                         Pagina{12, 6449, 4393, 350},
                                         Pagina{40, 4533, 6033, 0.75 * 4533 / 40},
                                         Pagina{40, 6033, 4533, 0.75 * 6033 / 40}));

TEST(Bocetos, SeDibujanConDatosAMedioEntrar) {
    Losa losa = prueba::LosaContinua({5, 0, 4}, 0);
    losa.Tramos[1].p1 = 500;
    losa.Tramos[1].L1 = 7;  // beyond the span
    losa.JuntasD.push_back({9, 1, 1});
    losa.Ejes.pop_back();
    LienzoGrabador lienzo(500, 300);
    EstadoVista vista;
    DibujeLosaDatos(lienzo, vista, losa, {2, 0}, {});
    EXPECT_NE(lienzo.Hallar("0,00"), nullptr);
    EXPECT_NE(lienzo.Hallar("5,00"), nullptr);
    DibujeLosaCargas(lienzo, vista, losa, {1, 0}, {});
    EXPECT_EQ(lienzo.Hallar("500"), nullptr);
    losa.OpcionMaciza = true;
    DibujeLosaExportar(lienzo, vista, losa, {});
    EXPECT_NE(lienzo.Hallar("0,20"), nullptr);
}

}  // namespace
}  // namespace trabex
