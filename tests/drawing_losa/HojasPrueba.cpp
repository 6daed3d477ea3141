#include "EnHoja.h"
#include "drawing/losa/GraficoLosasPrinter.h"

namespace trabex {
namespace {

/// By the total length, and by whether the last axis is shifted; the height limits on the screen alone.
TEST(Hojas, LaEscalaVaPorLaLongitudTotal) {
    struct Caso {
        double Longitud, Desnivel, K;
    };
    for (const auto& [longitud, desnivel, k] :
         {Caso{5, 0, 0.60}, Caso{5, 1, 0.60}, Caso{10, 0, 0.65}, Caso{10, 1, 0.55}, Caso{10, -1, 0.65},
          Caso{15, 0, 0.70}, Caso{15, 1, 0.70}, Caso{15.1, 0, 0.75}, Caso{80, 2, 0.75}}) {
        Losa losa = prueba::LosaContinua({longitud / 2, longitud / 2}, 300);
        if (desnivel != 0) losa.JuntasD.push_back({3, 0, desnivel});
        const double subida = std::max(desnivel, 0.0) / 2;
        for (const std::int32_t alto : {720, 3000}) {  // on the tall one the height never limits
            EnHoja hoja(losa, {1280, alto});
            hoja.Dibujar(VistaGeometria);
            const EstadoVista& vista = hoja.Hoja.Vista;
            EXPECT_DOUBLE_EQ(vista.Escala, std::min(1280 * k / longitud, alto * 0.7 / (subida + 7.5)));
            EXPECT_EQ(vista.OrigenX, 640);
            EXPECT_EQ(vista.OrigenY, std::nearbyint(subida * vista.Escala + alto * 0.18));
        }
    }
}

/// A4 and Letter within their margins, 600 units to an inch. What stands on the screen is panned by a metre.
TEST(Hojas, EnPapelLaEscalaTieneTopeYNoLaLimitaElAlto) {
    struct Caso {
        double Longitud;
        std::int32_t Ancho, Alto;
        double Escala;
    };
    for (const auto& [longitud, ancho, alto, escala] :
         {Caso{3, 4393, 6449, 350}, Caso{12, 4393, 6449, 0.7 * 4393 / 12}, Caso{12, 6449, 4393, 350},
          Caso{40, 4533, 6033, 0.75 * 4533 / 40}, Caso{40, 6033, 4533, 0.75 * 6033 / 40}}) {
        EnHoja hoja(prueba::LosaContinua({longitud / 2, longitud / 2}, 310, 120), {ancho, alto});
        hoja.Hoja.Vista.Escala = hoja.Hoja.Vista.PanX = 50;
        GuardeGraficos1(hoja.Lienzo, hoja.Hoja, hoja.Calculada(), {"MARÍA", "LA CEIBA", "ING. NÚÑEZ"});
        EXPECT_NE(hoja.Lienzo.Hallar("PROYECTO: LA CEIBA"), nullptr);
        for (const auto& texto : hoja.Lienzo.Textos) EXPECT_EQ(texto.Letra.Nombre, "Arial");
        EXPECT_DOUBLE_EQ(hoja.Lienzo.Hallar(Formato(longitud / 2, "0.00", {}))->Letra.Puntos, 8.5);
        EXPECT_EQ(hoja.Hoja.Vista.Escala, 50);  // of the screen, as it was
        hoja.Dibujar(VistaDiseno, HojaEnPapel);
        EXPECT_DOUBLE_EQ(hoja.Hoja.Vista.Escala, escala);
        EXPECT_EQ(hoja.Hoja.Vista.OrigenX, std::nearbyint(ancho / 2.0 + escala));
        EXPECT_EQ(hoja.Hoja.Vista.OrigenY, std::nearbyint(alto * 0.25));
    }
}

TEST(Hojas, SinResultadosODeOtraLosaNoSeDibujanNumeros) {
    EnHoja hoja(prueba::LosaContinua({5, 4}, 300, 150));
    hoja.Datos = prueba::LosaContinua({3, 3, 3}, 300);
    for (const ResultadosLosa& ajenos : {hoja.Resultados, ResultadosLosa{}}) {
        hoja.Resultados = ajenos;
        for (const std::uint8_t vista : {VistaGeometria, VistaFuerzas, VistaDiseno}) {
            hoja.Dibujar(vista);
            EXPECT_TRUE(hoja.Lienzo.DeColor({165, 191, 235}).empty());  // the shears'
        }
        EXPECT_NE(hoja.Lienzo.Hallar("0,00"), nullptr);
    }
}

TEST(Hojas, UnaLosaSinTramosSoloLimpiaElLienzo) {
    EnHoja hoja(Losa{});
    hoja.Dibujar(VistaDiseno);
    EXPECT_EQ(hoja.Lienzo.Limpiezas, 1);
    EXPECT_TRUE(hoja.Lienzo.Textos.empty());
    EXPECT_FALSE(hoja.Lienzo.Lineas.empty());  // the grid
}

}  // namespace
}  // namespace trabex
