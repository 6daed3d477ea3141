#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "drawing/helice/CuerpoHelice.h"
#include "drawing/helice/GraficoHelice.h"
#include "helical/CalcularEscaleraH.h"
#include "support/LienzoGrabador.h"

namespace trabex {

using namespace dibujo;
using namespace dibujo::helice;
using namespace helices;
namespace {

using prueba::LienzoGrabador;

/// The texts that come last, less those of the page, and that they stand within the canvas.
std::vector<std::string> Ultimos(const LienzoGrabador& lienzo, std::size_t deLaPagina) {
    std::vector<std::string> textos;
    for (const auto& t : lienzo.Textos) {
        textos.push_back(t.Texto);
        EXPECT_EQ(t.Letra.Nombre, "Arial");
        EXPECT_TRUE(t.Lugar.x >= 0 && t.Lugar.y >= 0 && t.Lugar.x + t.Medida.Ancho <= lienzo.ScaleWidth() &&
                    t.Lugar.y + t.Medida.Alto <= lienzo.ScaleHeight())
            << t.Texto << " " << lienzo.ScaleWidth();
    }
    return {textos.end() - 9 - static_cast<std::ptrdiff_t>(deLaPagina),
            textos.end() - static_cast<std::ptrdiff_t>(deLaPagina)};
}

prueba::Caja ZonaDe(std::span<const LienzoGrabador::Figura> figuras) {
    prueba::Caja zona{1e9, 1e9, -1e9, -1e9};
    for (const auto& figura : figuras)
        for (const auto& [x, y] : figura.Puntos)
            zona = {std::min<double>(zona.x1, x), std::min<double>(zona.y1, y), std::max<double>(zona.x2, x),
                    std::max<double>(zona.y2, y)};
    return zona;
}

/// Plan and perspective beside or below one another, between heading and texts, turned as it may be.
TEST(GraficoHelice, CadaFiguraEnSuSitio) {
    for (const double R : {1.0, 2.5, 25.0})
        for (const double giro : {0.0, 30.0, 90.0, 200.0})
            for (const auto& [ancho, alto] : {std::pair{1300, 600}, {700, 1000}, {600, 580}}) {
                DatosEscaleraH e = EscaleraHNuevaDe("H", "T");
                e.R = R;
                HojaHelice hoja;
                hoja.ElGiro = {giro, 2 * giro};
                LienzoGrabador lienzo(ancho, alto);
                RedibujeVista(lienzo, hoja, {e, {}});
                const prueba::Caja planta = ZonaDe(std::span(lienzo.Poligonos).first(1));
                const prueba::Caja vista = ZonaDe(std::span(lienzo.Poligonos).subspan(2));
                EXPECT_TRUE(planta.x2 < vista.x1 || planta.y2 < vista.y1) << R << " " << giro << " " << ancho;
                EXPECT_GT(std::min(planta.y1, vista.y1), lienzo.Hallar("T")->Lugar.y + 12)
                    << R << " " << giro;
                EXPECT_LT(std::max(planta.y2, vista.y2), lienzo.Hallar("Angulo = 260º")->Lugar.y)
                    << R << giro << ancho;
                EXPECT_TRUE(std::min(planta.x1, vista.x1) > 0 && vista.x2 < ancho)
                    << R << " " << giro << ancho;
            }
}

TEST(GraficoHelice, LosTextosEnSuOrdenConTituloEnPantallaYNombreEnPapel) {
    const DatosEscaleraH e = EscaleraHNuevaDe("H-1", "ESCALERA HELICOIDAL DEL VESTÍBULO PRINCIPAL");
    ResultadosEscaleraH r;
    CalcularEscaleraH(e, {}, r);
    HojaHelice hoja;
    for (const auto& [ancho, alto] : {std::pair{620, 330}, {1300, 600}, {700, 1000}, {940, 580}}) {
        LienzoGrabador pantalla(ancho, alto);
        RedibujeVista(pantalla, hoja, {e, r});
        EXPECT_THAT(
            Ultimos(pantalla, 0),
            testing::ElementsAre(e.Titulo, "Radio = 2,50 m", "Angulo = 260º", "Carga W = 1500 kgf/ml",
                                 "Longitud = 11,34 m", "Alfa = 14,81º", "Reacción Vertical RV = 8.508 kgf",
                                 "Reacción Horizontal RH = 10.639 kgf", "SECCIÖN: 1,50 x 0,15"));
    }
    LienzoGrabador papel(4000, 2800, 400);
    DibujeEnPapel(papel, hoja, {e, r}, {"U", "P", "C"});
    EXPECT_EQ(Ultimos(papel, 4).front(), "H-1");
    EXPECT_EQ(Ultimos(papel, 4).back(), "Sección: 1,50 x 0,15");
}

/// Against the equations worked apart; the last point stands in the eye.
TEST(GraficoHelice, LaPerspectivaYElFinDeLaPlanta) {
    const PuntoVisto girado = Perspectiva(3, {20, 35}).Ver({1, 2, 3});
    EXPECT_NEAR(girado.x, -0.8716345609261, 1e-12);
    EXPECT_NEAR(girado.y, 2.8192128227689, 1e-12);
    EXPECT_NEAR(girado.Fondo, 2.1641986520046, 1e-12);
    EXPECT_EQ(Perspectiva(0, {}).Ver({1, 2, -60}).y, 2);
    for (const double angulo : {45.0, 90.0, 122.5, 180.0, 260.0, 270.0, 359.0, 360.0}) {
        DatosEscaleraH e = EscaleraHNuevaDe("", "");
        e.Angulo = angulo;
        LienzoGrabador lienzo(1000, 600);
        HojaHelice hoja;
        RedibujeVista(lienzo, hoja, {e, {}});
        EXPECT_DOUBLE_EQ(hoja.Vista.Escala, 600 * 0.5 / (2 * (1.5 / 2 + 2.5)));
        const std::vector<PuntoLienzo>& contorno = lienzo.Poligonos[0].Puntos;
        const PuntoLienzo fin = contorno[contorno.size() / 2 - 1];
        const double giro = angulo * std::acos(-1.0) / 180;
        EXPECT_NEAR(fin.x - contorno[0].x, 150 * (std::cos(giro) - 1), 1.01) << angulo;
        EXPECT_NEAR(fin.y - contorno[0].y, 150 * std::sin(giro), 1.01) << angulo;
    }
}

/// It climbs, and what other parts hide of its edges is dotted. The one dotted line of a flat beam seen from
/// above is its radius.
TEST(GraficoHelice, SubeYLoOcultoEsPunteado) {
    DatosEscaleraH e = EscaleraHNuevaDe("", "");
    EXPECT_EQ(CuerpoHelice(e).En(1, 0).y, -1.5);
    EXPECT_EQ(CuerpoHelice(e).En(1, 260).y, 1.5);
    const auto punteadas = [&](const Giro& giro) {
        LienzoGrabador lienzo(1000, 600);
        HojaHelice hoja;
        hoja.ElGiro = giro;
        RedibujeVista(lienzo, hoja, {e, {}});
        return std::count_if(lienzo.Lineas.begin(), lienzo.Lineas.end(),
                             [](const auto& l) { return l.Borde->Estilo == EstiloLinea::Punteada; });
    };
    EXPECT_GT(punteadas({}), 20);
    e.H = 0;
    EXPECT_EQ(punteadas({90, 0}), 1);
}

TEST(GraficoHelice, GiraConElTiempoYConLasTeclas) {
    int dibujos = 0;
    Giro giro;
    const TeclasDeVista teclas = TeclasDeHelice(giro, [&] { ++dibujos; });
    EXPECT_EQ(teclas.PasoMetros * 99 + teclas.PasoPixeles, 10);
    EXPECT_FALSE(Avanzar(giro) || teclas.Antes(TeclaVista::Arriba));
    giro.Modo = ModoGiro::Vertical;
    for (int i = 0; i < 71; ++i) Avanzar(giro);
    EXPECT_EQ(giro.GiroVertical, 355);
    EXPECT_TRUE(teclas.Antes(TeclaVista::Arriba));
    EXPECT_EQ(giro.GiroVertical, 0);
    teclas.Antes(TeclaVista::Abajo);
    EXPECT_EQ(giro.GiroVertical, -5);
    giro.Modo = ModoGiro::Horizontal;
    for (int i = 0; i < 73; ++i) Avanzar(giro);
    teclas.Antes(TeclaVista::Izquierda);
    EXPECT_EQ(giro.GiroHorizontal, 360);
    EXPECT_FALSE(teclas.Antes(TeclaVista::Escape));
    EXPECT_EQ(dibujos, 3);
    Enderezar(giro);
    EXPECT_TRUE(giro.GiroVertical == 0 && giro.GiroHorizontal == 0 && giro.Modo == ModoGiro::Ninguno);
}

TEST(GraficoHelice, NingunNumeroLaDetiene) {
    for (const double v : {0.0, -1.0, 1e-300, 0.3, 360.0, 1e9, 1e300, HUGE_VAL, std::nan("")}) {
        for (const auto dato : {&DatosEscaleraH::B, &DatosEscaleraH::T, &DatosEscaleraH::H,
                                &DatosEscaleraH::R, &DatosEscaleraH::Angulo}) {
            DatosEscaleraH e = EscaleraHNuevaDe("H", "T");
            e.*dato = v;
            HojaHelice hoja;
            for (const std::int32_t lado : {0, 1, 500}) {
                LienzoGrabador lienzo(2 * lado, lado);
                RedibujeVista(lienzo, hoja, {e, {}});
                EXPECT_LT(lienzo.Lineas.size() + lienzo.Poligonos.size(), 9000U);
                DibujeBoceto(lienzo, hoja, e);
            }
        }
    }
}

}  // namespace
}  // namespace trabex
