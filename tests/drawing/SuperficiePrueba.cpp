#include <limits>

#include <gtest/gtest.h>

#include "drawing/Cotas.h"
#include "drawing/GeneralImpresion.h"
#include "drawing/Superficie.h"
#include "support/LienzoGrabador.h"

namespace trabex {

using namespace dibujo;
namespace {

using prueba::LienzoGrabador;

TEST(Superficie, ElOrigenSumaAltoMetrosYPanYRedondeaALaMitadPar) {
    LienzoGrabador lienzo(1001, 700);
    EstadoVista vista;
    vista.Zoom = 2;
    vista.PanX = 3;
    vista.PanY = -10;
    vista.EscalaBase = 0.125;  // of a redraw at zoom 1, of another size
    const Plano plano = Encuadrar(lienzo, vista, EnPantalla, {40, 0.18, 0.5});
    EXPECT_EQ(vista.Escala, 80);
    EXPECT_EQ(vista.EscalaBase, 0.125);
    EXPECT_EQ(vista.OrigenX, 504);  // 500.5 + 3
    EXPECT_EQ(vista.OrigenY, 156);  // 40 + 126 - 10
    EXPECT_EQ(plano.X(-1.5), 384);
    EXPECT_EQ(plano.Y(0.25), 136);
    EXPECT_EQ(plano.Fila(0.25, 1), 96);  // 0.75 m over the origin
    plano.Letra(8, true);
    plano.Escribir("A", Ancla::Izquierda, 0, 0);
    EXPECT_EQ(lienzo.Textos.back().Letra.Puntos, 80);  // 0.125·8·80
    EXPECT_TRUE(lienzo.Textos.back().Letra.Negrita);
    EXPECT_EQ(lienzo.Textos.back().Letra.Nombre, "Tahoma");

    vista.Zoom = 1;
    Encuadrar(lienzo, vista, EnPantalla, {40, 0.18, 0.5});
    EXPECT_EQ(vista.EscalaBase, 0.025);
    for (const double zoom : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
        vista.Zoom = zoom;
        Encuadrar(lienzo, vista, EnPantalla, {40, 0.18, 0.5});
        EXPECT_EQ(vista.Escala, 40);
    }
}

TEST(Superficie, EnPapelElPanVieneALaEscalaDeLaPaginaYLaLetraEsSuya) {
    LienzoGrabador pagina(4000, 6000);
    EstadoVista vista;
    vista.Escala = 50;  // on the screen, panned by 2 m and by half of one
    vista.Zoom = 1.5;
    vista.PanX = 100;
    vista.PanY = -25;
    Plano plano = Encuadrar(pagina, vista, EnPapel, {200, 0.25, -1});
    EXPECT_EQ(vista.Escala, 300);
    EXPECT_EQ(vista.OrigenX, 2600);
    EXPECT_EQ(vista.OrigenY, 1050);  // -300 + 1500 - 150
    plano.Letra(10);
    plano.Escribir("A", Ancla::Izquierda, 0, 0);
    EXPECT_EQ(pagina.Textos.back().Letra.Puntos, 15);
    EXPECT_EQ(pagina.Textos.back().Letra.Nombre, "Arial");

    vista = {};  // nothing was drawn on a screen
    vista.PanX = 100;
    Encuadrar(pagina, vista, EnPapel, {200, 0.25, 0});
    EXPECT_EQ(vista.OrigenX, 2100);
}

TEST(Superficie, LaCuadriculaEsDeLaPantallaYSeApaga) {
    const auto lineas = [](bool visible, bool exportando, const Superficie& superficie) {
        LienzoGrabador lienzo(100, 100);
        EstadoVista vista;
        vista.CuadriculaVisible = visible;
        vista.ExportandoGrafico = exportando;
        Despejar(lienzo, vista, superficie);
        EXPECT_EQ(lienzo.Limpiezas, 1);
        return lienzo.Lineas.size();
    };
    EXPECT_EQ(lineas(true, false, EnPantalla), 4U);  // at 0 and 80
    EXPECT_EQ(lineas(false, false, EnPantalla), 0U);
    EXPECT_EQ(lineas(true, true, EnPantalla), 0U);
    EXPECT_EQ(lineas(true, false, EnPapel), 0U);
}

/// A plane of 100 units to a metre whose origin is in (500, 300), with texts of 9 points: 16 tall, four
/// letters 27 wide.
struct PlanoPrueba : testing::Test {
    PlanoPrueba() { ElPlano.Letra(9); }
    PuntoLienzo Escrito(const std::string& texto) const { return Lienzo.Hallar(texto)->Lugar; }

    LienzoGrabador Lienzo{1000, 600};
    EstadoVista Vista{1, 0, 0, 100, 0.01, 500, 300, true, false};
    Plano ElPlano{Lienzo, Vista, "Tahoma"};
};

TEST_F(PlanoPrueba, LasCotasLlevanPuntasHaciaAfueraYSuTextoEnSuLugar) {
    const Color tinta{1, 2, 3};
    Acotar(ElPlano, {100, 50}, {200, 50}, "arri", TextoDeCota::Encima, {1, EstiloLinea::Punteada, tinta});
    EXPECT_EQ(Escrito("arri"), (PuntoLienzo{137, 33}));
    EXPECT_EQ(Lienzo.Lineas.back().Puntos, (std::vector<PuntoLienzo>{{100, 50}, {200, 50}}));
    EXPECT_EQ(Lienzo.Lineas.back().Borde->Estilo, EstiloLinea::Punteada);
    ASSERT_EQ(Lienzo.Pixeles.size(), 50U);
    for (std::size_t i = 0; i < 50; ++i) {
        EXPECT_GE(Lienzo.Pixeles[i].x, i < 25 ? 100 : 196);
        EXPECT_LE(Lienzo.Pixeles[i].x, i < 25 ? 104 : 200);
    }
    Acotar(ElPlano, {100, 50}, {200, 50}, "tras", TextoDeCota::AlFinal);
    EXPECT_EQ(Escrito("tras"), (PuntoLienzo{206, 42}));
    Lienzo.Pixeles.clear();
    Acotar(ElPlano, {100, 50}, {100, 90}, "izqu", TextoDeCota::Izquierda);
    EXPECT_EQ(Escrito("izqu"), (PuntoLienzo{67, 62}));
    for (std::size_t i = 0; i < 50; ++i) {
        EXPECT_GE(Lienzo.Pixeles[i].y, i < 25 ? 50 : 86);
        EXPECT_LE(Lienzo.Pixeles[i].y, i < 25 ? 54 : 90);
    }
    Acotar(ElPlano, {100, 50}, {100, 90}, "dere", TextoDeCota::Derecha);
    EXPECT_EQ(Escrito("dere"), (PuntoLienzo{106, 62}));
}

TEST_F(PlanoPrueba, ElTextoSeAnclaSeCentraYGira) {
    ElPlano.Escribir("izqu", Ancla::Izquierda, 50, 7);
    ElPlano.Escribir("cent", Ancla::Centro, 50, 7);
    ElPlano.Escribir("dere", Ancla::Derecha, 50, 7);
    EXPECT_EQ(Escrito("izqu"), (PuntoLienzo{50, 7}));
    EXPECT_EQ(Escrito("cent"), (PuntoLienzo{37, 7}));
    EXPECT_EQ(Escrito("dere"), (PuntoLienzo{23, 7}));
    ElPlano.EscribirCentrado("plan", 200, 100);
    EXPECT_EQ(Escrito("plan"), (PuntoLienzo{186, 92}));  // 186.5 to the even neighbour
    ElPlano.EscribirCentrado("sube", 200, 100, 90);      // reads upward, so its corner is below at the left
    EXPECT_EQ(Escrito("sube"), (PuntoLienzo{192, 114}));
    EXPECT_EQ(Lienzo.Textos.back().Decimas, 900);
    ElPlano.EscribirCentrado("baja", 200, 100, -90);
    EXPECT_EQ(Escrito("baja"), (PuntoLienzo{208, 86}));
    EXPECT_EQ(Lienzo.Textos.back().Decimas, -900);
}

TEST_F(PlanoPrueba, UnTituloNoBajaDeOchoPuntos) {
    Vista.Escala = 50;
    ElPlano.LetraDeTitulo(9);
    ElPlano.Escribir("chico", Ancla::Izquierda, 0, 0);
    EXPECT_EQ(Lienzo.Textos.back().Letra.Puntos, 8);
    EXPECT_TRUE(Lienzo.Textos.back().Letra.Negrita);
    Vista.Escala = 300;
    ElPlano.LetraDeTitulo(9);
    ElPlano.Escribir("grande", Ancla::Izquierda, 0, 0);
    EXPECT_EQ(Lienzo.Textos.back().Letra.Puntos, 27);
}

TEST_F(PlanoPrueba, UnRotuloVaAlPrimerLugarLibreYSiNoHayAlMenosPisado) {
    ElPlano.Reservar({0, 0, 300, 100});  // more than a column of the index
    const PiezaTexto libre = ElPlano.Colocar(40, 20, {{250, 50}, {320, 50}, {320, 90}});
    EXPECT_EQ(libre.x, 300);  // touches, does not meet
    EXPECT_EQ(libre.y, 40);
    ElPlano.Rotular("otra", {{320, 50}, {320, 90}});
    EXPECT_EQ(Escrito("otra"), (PuntoLienzo{306, 82}));
    const PiezaTexto menosPisada = ElPlano.Colocar(40, 20, {{150, 50}, {150, 105}, {150, 95}});
    EXPECT_EQ(menosPisada.y, 95);
    // The place of a text that reads upward is as wide as a line is tall.
    ElPlano.Rotular("sube", {{400, 300}}, 90);
    const PiezaTexto junto = ElPlano.Colocar(10, 10, {{413, 300}, {420, 300}});
    EXPECT_EQ(junto.x, 408);
    const PiezaTexto encima = ElPlano.Colocar(10, 10, {{400, 312}, {400, 330}});
    EXPECT_EQ(encima.y, 325);
}

TEST(GeneralImpresion, CadaPaginaDiceDeQuienEs) {
    LienzoGrabador pagina(4000, 6000);
    DibujePagina(pagina, {"ANA", "OBRA", "ING. PÉREZ"});
    ASSERT_EQ(pagina.Textos.size(), 4U);  // 9 points of Arial: 16 tall
    const auto lugar = [&](const char* texto) { return pagina.Hallar(texto)->Lugar; };
    EXPECT_EQ(lugar("PROYECTO: OBRA"), (PuntoLienzo{0, 0}));
    EXPECT_EQ(lugar("CALCULISTA: ING. PÉREZ"), (PuntoLienzo{0, 16}));
    EXPECT_EQ(lugar("Usuario: ANA"), (PuntoLienzo{0, 5984}));
    EXPECT_EQ(lugar("Trabex  versión: 2024"), (PuntoLienzo{4000 - 139, 5984}));  // 21 letters
    EXPECT_EQ(pagina.Textos.back().Letra.Nombre, "Arial");
    ASSERT_EQ(pagina.Lineas.size(), 2U);
    EXPECT_EQ(pagina.Lineas[0].Puntos, (std::vector<PuntoLienzo>{{0, 37}, {4000, 37}}));
    EXPECT_EQ(pagina.Lineas[1].Puntos, (std::vector<PuntoLienzo>{{0, 5979}, {4000, 5979}}));
}

}  // namespace
}  // namespace trabex
