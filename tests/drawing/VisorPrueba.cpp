#include <array>
#include <map>
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
    Vista.SubirBoton(BotonRaton::Izquierdo);
    EXPECT_EQ(Estado.PanX, 0);

    Vista.BajarBoton(BotonRaton::Central, 100, 100);
    Vista.Mover(BotonRaton::Central, 100, 100);  // has not moved
    EXPECT_EQ(Anfitrion.Redibujos, 0);
    Vista.Mover(BotonRaton::Central, 130, 90);
    Vista.Mover(BotonRaton::Central, 131, 90);
    EXPECT_EQ(Estado.PanX, 31);
    EXPECT_EQ(Estado.PanY, -10);
    EXPECT_EQ(Anfitrion.Redibujos, 2);
    Vista.SubirBoton(BotonRaton::Central);
    EXPECT_EQ(Anfitrion.Puntero, PunteroVista::Normal);

    Vista.EjecutePanRealtime(true);  // the hand closes while it drags, and is back when it moves alone
    EXPECT_EQ(Anfitrion.Puntero, PunteroVista::ManoAbierta);
    Vista.BajarBoton(BotonRaton::Izquierdo, 0, 0);
    EXPECT_EQ(Anfitrion.Puntero, PunteroVista::ManoCerrada);
    Vista.Mover(BotonRaton::Izquierdo, 0, 5);
    EXPECT_EQ(Estado.PanY, -5);
    Vista.SubirBoton(BotonRaton::Izquierdo);
    EXPECT_EQ(Anfitrion.Puntero, PunteroVista::ManoAbierta);
    Vista.BajarBoton(BotonRaton::Central, 0, 0);
    Vista.SubirBoton(BotonRaton::Central);
    EXPECT_EQ(Anfitrion.Puntero, PunteroVista::Normal);
    Vista.Mover(BotonRaton::Ninguno, 40, 40);
    EXPECT_EQ(Anfitrion.Puntero, PunteroVista::ManoAbierta);
    EXPECT_EQ(Estado.PanX, 31);
    Vista.BajarBoton(BotonRaton::Derecho, 4, 5);
    EXPECT_EQ(Anfitrion.Menu, (PuntoLienzo{4, 5}));
}

TEST_F(VisorPrueba, LasFlechasMuevenElDibujoContraLaTeclaPorElPasoDelElemento) {
    Estado.Escala = 50;
    Vista.Teclear(TeclaVista::Izquierda);
    Vista.Teclear(TeclaVista::Abajo);
    EXPECT_EQ(Estado.PanX, 20);
    EXPECT_EQ(Estado.PanY, -20);
    Vista.Teclear(TeclaVista::Derecha);
    Vista.Teclear(TeclaVista::Arriba);
    EXPECT_EQ(std::pair(Estado.PanX, Estado.PanY), std::pair(0.0F, 0.0F));

    std::vector<TeclaVista> tomadas;
    bool girando = true;
    Visor propio(Estado, Anfitrion, {0, 10, [&](TeclaVista tecla) {
                                         if (girando && tecla != TeclaVista::Escape) tomadas.push_back(tecla);
                                         return girando && tecla != TeclaVista::Escape;
                                     }});
    Estado.Zoom = 2;
    for (const TeclaVista tecla : {TeclaVista::Izquierda, TeclaVista::Mas}) propio.Teclear(tecla);
    EXPECT_EQ(tomadas, (std::vector{TeclaVista::Izquierda, TeclaVista::Mas}));
    EXPECT_EQ(Estado.PanX, 0);
    EXPECT_EQ(Estado.Zoom, 2);
    propio.Teclear(TeclaVista::Escape);
    EXPECT_EQ(Estado.Zoom, 1);
    girando = false;
    propio.Teclear(TeclaVista::Izquierda);
    EXPECT_EQ(Estado.PanX, 10);
}

/// Left, top, right and bottom of what is drawn.
std::array<int, 4> CajaDe(const std::vector<PuntoLienzo>& puntos) {
    std::array<int, 4> caja{puntos[0].x, puntos[0].y, puntos[0].x, puntos[0].y};
    for (const PuntoLienzo p : puntos)
        caja = {std::min(caja[0], p.x), std::min(caja[1], p.y), std::max(caja[2], p.x),
                std::max(caja[3], p.y)};
    return caja;
}

/// With their points at (50, 50): rows of 1, 3, 5, 7 and 9 pixels; a block of 30 long, its lengths 4.5, 1.35
/// and 15 to the even neighbour; one of 1000 with 101, 30 and 354.
TEST(Flechas, AbrenHaciaElLadoContrarioDelQueMiran) {
    struct Caso {
        Sentidos Mira;
        std::array<int, 4> Pixeles, Bloque, Diagonal;
    };
    for (const auto& [mira, pixeles, bloque, diagonal] :
         {Caso{HaciaAbajo, {46, 46, 54, 50}, {46, 35, 54, 50}, {-51, -304, 151, 50}},
          Caso{HaciaArriba, {46, 50, 54, 54}, {46, 50, 54, 65}, {-51, 50, 151, 404}},
          Caso{HaciaIzquierda, {50, 46, 54, 54}, {50, 46, 65, 54}, {50, -51, 404, 151}},
          Caso{HaciaDerecha, {46, 46, 50, 54}, {35, 46, 50, 54}, {-304, -51, 50, 151}}}) {
        LienzoGrabador lienzo(100, 100);
        DibujeFlechaPixel(lienzo, 50, 50, mira, {});
        EXPECT_EQ(CajaDe(lienzo.Pixeles), pixeles);
        EXPECT_EQ(lienzo.Pixeles.size(), 25U);
        const bool vertical = pixeles[0] == 46 && pixeles[2] == 54;
        std::map<int, int> porFila;
        for (const PuntoLienzo p : lienzo.Pixeles) ++porFila[std::abs(vertical ? p.y - 50 : p.x - 50)];
        EXPECT_EQ(porFila, (std::map<int, int>{{0, 1}, {1, 3}, {2, 5}, {3, 7}, {4, 9}}));

        DibujeFlecha(lienzo, 50, 50, mira, {1, 2, 3}, 30);
        DibujeFlechaDiagonal(lienzo, 50, 50, mira, {1, 2, 3}, 1000);
        const auto ancho = [&](const auto& p) {
            return std::abs(p[2].x - p[5].x) + std::abs(p[2].y - p[5].y);
        };
        for (const auto& [cual, caja, fuste] : {std::tuple{0U, bloque, 2}, {1U, diagonal, 60}}) {
            const auto& puntos = lienzo.Poligonos.at(cual).Puntos;
            EXPECT_EQ(puntos[0], (PuntoLienzo{50, 50}));
            EXPECT_EQ(CajaDe(puntos), caja);
            EXPECT_EQ(ancho(puntos), fuste);
        }
    }
}

TEST(Primitivas, LaCuadriculaPasaTreintaDelBorde) {
    LienzoGrabador lienzo(130, 200);
    DibujeCuadricula(lienzo, 80);
    ASSERT_EQ(lienzo.Lineas.size(), 3U + 3U);  // x 0, 80, 160; y 0, 80, 160
    EXPECT_EQ(lienzo.Lineas[2].Puntos, (std::vector<PuntoLienzo>{{160, 0}, {160, 200}}));
    EXPECT_EQ(lienzo.Lineas[5].Puntos, (std::vector<PuntoLienzo>{{0, 160}, {130, 160}}));
    EXPECT_EQ(lienzo.Lineas[5].Borde->Tinta, (Color{226, 232, 239}));
}

}  // namespace
}  // namespace trabex
