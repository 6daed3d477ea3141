#include <set>
#include <vector>

#include <gtest/gtest.h>

#include "drawing/Primitivas.h"
#include "drawing/Visor.h"
#include "support/LienzoGrabador.h"

namespace trabex {

using namespace dibujo;
namespace {

using prueba::LienzoGrabador;

class AnfitrionGrabador : public AnfitrionVista {
  public:
    void RedibujeVista() override { ++Redibujos; }
    void PonerPuntero(PunteroVista puntero) override { Puntero = puntero; }
    void SoltarPanRealtime() override { ++PanSueltos; }
    void AbrirMenuPantalla(std::int32_t x, std::int32_t y) override { Menu = {x, y}; }

    int Redibujos = 0;
    int PanSueltos = 0;
    PunteroVista Puntero = PunteroVista::Normal;
    PuntoLienzo Menu;
};

struct VisorPrueba : testing::Test {
    EstadoVista Estado;
    AnfitrionGrabador Anfitrion;
    Visor Vista{Estado, Anfitrion};
};

TEST_F(VisorPrueba, ElZoomNoBajaDeUnDecimoNiTieneTecho) {
    Estado.Zoom = 0.15;
    for (int paso = 0; paso < 2; ++paso) {
        Vista.EjecuteZoomOut();
        EXPECT_EQ(Estado.Zoom, 0.1);
    }
    for (int paso = 0; paso < 300; ++paso) Vista.ZoomMouseWheel(true);
    EXPECT_NEAR(Estado.Zoom, 30.1, 1e-9);
    EXPECT_EQ(Anfitrion.Redibujos, 302);  // one picture a step
}

TEST_F(VisorPrueba, ExtensionDeshaceTodoYSueltaElPan) {
    Vista.EjecutePanRealtime(true);
    Vista.BajarBoton(BotonRaton::Izquierdo, 10, 10);
    Vista.Mover(BotonRaton::Izquierdo, 25, 3);
    Vista.EjecuteZoomIn();
    Vista.Teclear(TeclaVista::Escape);
    EXPECT_EQ(Estado.Zoom, 1);
    EXPECT_EQ(Estado.PanX, 0);
    EXPECT_EQ(Estado.PanY, 0);
    Vista.BajarBoton(BotonRaton::Izquierdo, 0, 0);
    Vista.Mover(BotonRaton::Izquierdo, 9, 9);
    EXPECT_EQ(Estado.PanX, 0);
    EXPECT_EQ(Anfitrion.PanSueltos, 1);
    EXPECT_EQ(Anfitrion.Puntero, PunteroVista::Normal);
}

TEST_F(VisorPrueba, SoloArrastraConElPanOConElBotonCentral) {
    Vista.BajarBoton(BotonRaton::Izquierdo, 0, 0);
    Vista.Mover(BotonRaton::Izquierdo, 9, 9);
    EXPECT_EQ(Estado.PanX, 0);

    Vista.BajarBoton(BotonRaton::Central, 100, 100);
    EXPECT_EQ(Anfitrion.Redibujos, 0);
    Vista.Mover(BotonRaton::Central, 100, 100);  // has not moved
    EXPECT_EQ(Anfitrion.Redibujos, 0);
    Vista.Mover(BotonRaton::Central, 130, 90);
    Vista.Mover(BotonRaton::Central, 131, 90);
    EXPECT_EQ(Estado.PanX, 31);
    EXPECT_EQ(Estado.PanY, -10);
    EXPECT_EQ(Anfitrion.Redibujos, 2);
    Vista.SubirBoton(BotonRaton::Central);
    EXPECT_EQ(Anfitrion.Puntero, PunteroVista::Normal);

    Vista.EjecutePanRealtime(true);
    Vista.BajarBoton(BotonRaton::Izquierdo, 0, 0);
    Vista.Mover(BotonRaton::Izquierdo, 0, 5);
    EXPECT_EQ(Estado.PanY, -5);
    Vista.Mover(BotonRaton::Ninguno, 40, 40);
    EXPECT_EQ(Estado.PanX, 31);

    Vista.BajarBoton(BotonRaton::Derecho, 4, 5);
    EXPECT_EQ(Anfitrion.Menu, (PuntoLienzo{4, 5}));
}

TEST_F(VisorPrueba, LaManoSeCierraAlArrastrarYVuelveAlMoverSinBoton) {
    Vista.EjecutePanRealtime(true);
    EXPECT_EQ(Anfitrion.Puntero, PunteroVista::ManoAbierta);
    Vista.BajarBoton(BotonRaton::Izquierdo, 0, 0);
    EXPECT_EQ(Anfitrion.Puntero, PunteroVista::ManoCerrada);
    Vista.SubirBoton(BotonRaton::Izquierdo);
    EXPECT_EQ(Anfitrion.Puntero, PunteroVista::ManoAbierta);
    Vista.BajarBoton(BotonRaton::Central, 0, 0);
    Vista.SubirBoton(BotonRaton::Central);
    EXPECT_EQ(Anfitrion.Puntero, PunteroVista::Normal);
    Vista.Mover(BotonRaton::Ninguno, 1, 1);
    EXPECT_EQ(Anfitrion.Puntero, PunteroVista::ManoAbierta);
}

TEST_F(VisorPrueba, LasFlechasMuevenElDibujoContraLaTecla) {
    Estado.Escala = 50;
    Vista.Teclear(TeclaVista::Izquierda);
    Vista.Teclear(TeclaVista::Abajo);
    EXPECT_EQ(Estado.PanX, 20);
    EXPECT_EQ(Estado.PanY, -20);
    Vista.Teclear(TeclaVista::Derecha);
    Vista.Teclear(TeclaVista::Arriba);
    EXPECT_EQ(Estado.PanX, 0);
    EXPECT_EQ(Estado.PanY, 0);
}

TEST_F(VisorPrueba, UnElementoTomaTeclasAntesYTieneSuPaso) {
    std::vector<TeclaVista> tomadas;
    bool girando = true;
    Visor propio(Estado, Anfitrion, {0, 10, [&](TeclaVista tecla) {
                                         if (girando && tecla != TeclaVista::Escape) tomadas.push_back(tecla);
                                         return girando && tecla != TeclaVista::Escape;
                                     }});
    Estado.Escala = 50;
    Estado.Zoom = 2;
    propio.Teclear(TeclaVista::Izquierda);
    propio.Teclear(TeclaVista::Mas);
    EXPECT_EQ(tomadas, (std::vector{TeclaVista::Izquierda, TeclaVista::Mas}));
    EXPECT_EQ(Estado.PanX, 0);
    EXPECT_EQ(Estado.Zoom, 2);
    propio.Teclear(TeclaVista::Escape);
    EXPECT_EQ(Estado.Zoom, 1);
    girando = false;
    propio.Teclear(TeclaVista::Izquierda);
    EXPECT_EQ(Estado.PanX, 10);
}

struct PuntaDeFlecha {
    Sentidos Mira;
    PuntoLienzo Abertura;  ///< from the point toward the base
};

class FlechaPrueba : public testing::TestWithParam<PuntaDeFlecha> {};

TEST_P(FlechaPrueba, AbrenHaciaElLadoContrarioDelQueMiran) {
    const auto [mira, abertura] = GetParam();
    LienzoGrabador lienzo(100, 100);
    DibujeFlechaPixel(lienzo, 50, 50, mira, {});
    std::set<std::pair<int, int>> pixeles;
    std::vector<int> porFila(5);
    for (const PuntoLienzo p : lienzo.Pixeles) {
        pixeles.insert({p.x, p.y});
        const int fila = (p.x - 50) * abertura.x + (p.y - 50) * abertura.y;
        ASSERT_TRUE(fila >= 0 && fila < 5);
        ++porFila[static_cast<std::size_t>(fila)];
    }
    EXPECT_EQ(pixeles.size(), 25U);
    EXPECT_EQ(porFila, (std::vector<int>{1, 3, 5, 7, 9}));

    DibujeFlecha(lienzo, 50, 50, mira, {1, 2, 3}, 30);  // 4.5 and 1.35 to the even neighbour, 15
    const auto& bloque = lienzo.Poligonos.at(0).Puntos;
    ASSERT_EQ(bloque.size(), 7U);
    EXPECT_EQ(bloque[0], (PuntoLienzo{50, 50}));
    int largo = 0, ancho = 0;
    for (const PuntoLienzo p : bloque) {
        largo = std::max(largo, (p.x - 50) * abertura.x + (p.y - 50) * abertura.y);
        ancho = std::max(ancho, std::abs((p.x - 50) * abertura.y) + std::abs((p.y - 50) * abertura.x));
    }
    EXPECT_EQ(largo, 15);
    EXPECT_EQ(ancho, 4);
    const PuntoLienzo fuste{bloque[2].x - bloque[5].x, bloque[2].y - bloque[5].y};
    EXPECT_EQ(std::abs(fuste.x) + std::abs(fuste.y), 2);

    DibujeFlechaDiagonal(lienzo, 50, 50, mira, {1, 2, 3}, 1000);  // 101, 30 and 354
    const auto& diagonal = lienzo.Poligonos.at(1).Puntos;
    const auto lado = [&](PuntoLienzo a, PuntoLienzo b) { return std::abs(a.x - b.x) + std::abs(a.y - b.y); };
    EXPECT_EQ(lado(diagonal[1], diagonal[6]), 202);
    EXPECT_EQ(lado(diagonal[2], diagonal[5]), 60);
    EXPECT_EQ(lado(diagonal[2], diagonal[3]), 354 - 101);
}

INSTANTIATE_TEST_SUITE_P(Sentidos, FlechaPrueba,
                         testing::Values(PuntaDeFlecha{HaciaAbajo, {0, -1}},
                                         PuntaDeFlecha{HaciaArriba, {0, 1}},
                                         PuntaDeFlecha{HaciaIzquierda, {1, 0}},
                                         PuntaDeFlecha{HaciaDerecha, {-1, 0}}));

TEST(Primitivas, LaCuadriculaPasaTreintaDelBorde) {
    LienzoGrabador lienzo(130, 200);
    DibujeCuadricula(lienzo, 80);
    ASSERT_EQ(lienzo.Lineas.size(), 3U + 3U);  // x 0, 80, 160; y 0, 80, 160
    EXPECT_EQ(lienzo.Lineas[2].Puntos, (std::vector<PuntoLienzo>{{160, 0}, {160, 200}}));
    EXPECT_EQ(lienzo.Lineas[5].Puntos, (std::vector<PuntoLienzo>{{0, 160}, {130, 160}}));
    for (const auto& linea : lienzo.Lineas) {
        EXPECT_EQ(linea.Borde->Tinta, (Color{226, 232, 239}));
        EXPECT_EQ(linea.Borde->Estilo, EstiloLinea::Solida);
        EXPECT_EQ(linea.Borde->Ancho, 1);
    }
}

}  // namespace
}  // namespace trabex
