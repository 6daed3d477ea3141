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
constexpr Color FondoMomento{247, 194, 187};

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

TEST(Hojas, LosMomentosPositivosVanHaciaAbajoYLosCortesHaciaArriba) {
    Caso caso(prueba::LosaContinua({6}, 200));
    caso.Dibujar(VistaFuerzas);
    const double E = caso.Hoja.Vista.Escala;
    const auto ejeCorte = caso.Hoja.Vista.OrigenY + std::nearbyint(E * 2.97);
    const auto primera = caso.Lienzo.DeColor(FondoCorte).front().Puntos;
    EXPECT_EQ(primera[0].y, ejeCorte);
    EXPECT_EQ(primera[1].y, ejeCorte - std::nearbyint(E * 0.8));  // the largest shear fills the scale
    const auto momentos = caso.Lienzo.DeColor(FondoMomento);
    const auto ejeMomento = ejeCorte + 2 * std::nearbyint(E * 1.39);
    EXPECT_EQ(momentos.front().Puntos[0].y, ejeMomento);
    const auto& puntos = momentos.front().Puntos;
    const auto& bajo = *std::max_element(puntos.begin(), puntos.end(),
                                         [](PuntoLienzo a, PuntoLienzo b) { return a.y < b.y; });
    EXPECT_NEAR(bajo.y, ejeMomento + E * 0.8, 1);
    EXPECT_NEAR(bajo.x, caso.Hoja.Vista.OrigenX, 0.25 * E);
}

std::vector<const TextoGrabado*> TextosEnFilaDe(const LienzoGrabador& lienzo, const std::string& rotulo) {
    const TextoGrabado* etiqueta = lienzo.Hallar(rotulo);
    std::vector<const TextoGrabado*> fila;
    for (const TextoGrabado& texto : lienzo.Textos) {
        if (etiqueta != nullptr && std::abs(texto.Lugar.y - etiqueta->Lugar.y) <= 2 && &texto != etiqueta)
            fila.push_back(&texto);
    }
    return fila;
}

TEST(Hojas, LaTablaDeDisenoVaAlineadaConSusEjesACualquierZoom) {
    Caso caso(prueba::LosaContinua({5, 4}, 300, 150));
    for (const double zoom : {1.0, 0.5, 2.7}) {
        caso.Hoja.Vista.Zoom = zoom;
        caso.Hoja.Vista.PanX = 13;
        caso.Dibujar(VistaDiseno);
        const auto fila = TextosEnFilaDe(caso.Lienzo, "Total (kgf/metro):");
        ASSERT_EQ(fila.size(), 3U);
        for (std::size_t eje = 1; eje <= 3; ++eje) {
            const double x = caso.Hoja.Vista.OrigenX + caso.Hoja.Vista.Escala * caso.Hoja.Ejes.EjesX[eje];
            EXPECT_NEAR(fila[eje - 1]->CentroX(), x, 1.1);
            const double RV =
                caso.Resultados.ResultadoJunta[1][eje].RV + caso.Resultados.ResultadoJunta[2][eje].RV;
            EXPECT_EQ(fila[eje - 1]->Texto, Formato(RV / 0.5, "0", {}));  // ribs every half metre
        }
        EXPECT_EQ(TextosEnFilaDe(caso.Lienzo, "Mu Inf (kgf-m):").size(), 2U);
        EXPECT_EQ(TextosEnFilaDe(caso.Lienzo, "As Sup (cm2):")[1]->Texto,
                  Formato(caso.Resultados.DisenoEje[2].AS1, "0.00", {}));
    }
    // 14/4200·10·22.5 and, of the solid one, 17.5·100·0.002
    EXPECT_NE(caso.Lienzo.Hallar("AsMín = 0,75 cm2"), nullptr);
    caso.Datos.OpcionMaciza = true;
    caso.Dibujar(VistaDiseno);
    EXPECT_NE(caso.Lienzo.Hallar("AsMín = 3,50 cm2/m"), nullptr);
    EXPECT_NE(caso.Lienzo.Hallar("As Inf (cm2/m):"), nullptr);
    EXPECT_EQ(TextosEnFilaDe(caso.Lienzo, "CP (kgf/metro):")[0]->Texto,
              Formato(caso.Resultados.ResultadoJunta[1][1].RV, "0", {}));
}

TEST(Hojas, LasReaccionesSolasDejanTresFilas) {
    Caso caso(prueba::LosaContinua({5, 4}, 300, 150));
    caso.Hoja.SoloReacciones = true;
    caso.Dibujar(VistaDiseno);
    EXPECT_NE(caso.Lienzo.Hallar("Total (kgf/metro):"), nullptr);
    EXPECT_EQ(caso.Lienzo.Hallar("Macizados (m):"), nullptr);
    EXPECT_EQ(caso.Lienzo.Textos.back().Texto, "REACCIONES SOBRE LAS VIGAS");
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
        EXPECT_EQ(TextosEnFilaDe(caso.Lienzo, "As Sup (cm2):")[1]->Texto, "0,00");
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
    EXPECT_NE(pagina.Hallar("CP (kgf/ml):"), nullptr);
    EXPECT_NE(pagina.Hallar("As Sup(cm2):"), nullptr);
    EXPECT_NE(pagina.Hallar("LOSA NERVADA: E = 0,25 m   (ANALISIS Y DISEÑO)"), nullptr);
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
