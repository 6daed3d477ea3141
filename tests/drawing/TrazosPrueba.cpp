#include <gtest/gtest.h>

#include "drawing/Primitivas.h"
#include "drawing/Trazos.h"
#include "support/LienzoGrabador.h"

namespace trabex {

using namespace dibujo;
namespace {

using prueba::LienzoGrabador;

std::string DibujoDePrueba(LienzoGrabador& original) {
    LienzoConTrazos lienzo(original);
    lienzo.PonerFuente({"Tahoma", 8.5, true});
    lienzo.PonerColorTexto({1, 2, 255});
    DibujeTexto(lienzo, "se borra", 0, 0, 0);
    lienzo.Limpiar();
    lienzo.PonerMetros({55.123456789, {-3, 7}});
    lienzo.PonerCapa("EJES");
    DibujeTexto(lienzo, "Ñandú", -7, 2000000, 90);
    DibujeLinea(lienzo, -1, 2, 300, -40000, 3, EstiloLinea::Punteada, {9, 8, 7});
    DibujeFlecha(lienzo, 5, 6, HaciaArriba, {200, 100, 0}, 100);
    lienzo.Circulo({50, 60}, 12, Pluma{2, EstiloLinea::Solida, {}}, std::nullopt);
    DibujeFlechaPixel(lienzo, 9, 9, HaciaAbajo, {});
    return lienzo.Trazos();
}

TEST(Trazos, SeRepitenComoSeDibujaron) {
    LienzoGrabador original(400, 300);
    LienzoGrabador copia(400, 300);
    const std::string trazos = DibujoDePrueba(original);
    ASSERT_TRUE(MedidaDe(trazos));
    EXPECT_EQ(MedidaDe(trazos)->Ancho, 400);
    EXPECT_EQ(MedidaDe(trazos)->Alto, 300);
    LienzoConTrazos otraVez(copia);
    Repetir(trazos, otraVez);
    EXPECT_EQ(otraVez.Trazos(), trazos);
    EXPECT_EQ(copia.Textos.at(0).Lugar, (PuntoLienzo{-7, 2000000}));
    EXPECT_EQ(copia.Textos.at(0).Letra.Puntos, 8.5);
    EXPECT_EQ(copia.Textos.at(0).Tinta, (Color{1, 2, 255}));
    EXPECT_EQ(copia.Lineas.at(0).Puntos, original.Lineas.at(0).Puntos);
    EXPECT_EQ(copia.Lineas.at(0).Borde->Tinta, (Color{9, 8, 7}));
    EXPECT_EQ(copia.Poligonos.at(0).Puntos, original.Poligonos.at(0).Puntos);
    EXPECT_EQ(copia.Poligonos.at(0).Relleno, (Color{200, 100, 0}));
    EXPECT_EQ(copia.Circulos.at(0).Puntos, original.Circulos.at(0).Puntos);
    EXPECT_EQ(copia.Pixeles, original.Pixeles);
    const std::vector<TextoTrazado> textos = TextosDe(trazos);
    ASSERT_EQ(textos.size(), 1U);
    EXPECT_EQ(textos[0].Texto, "Ñandú");
    EXPECT_EQ(textos[0].DecimasDeGrado, 900);
    EXPECT_EQ(textos[0].Medida.Ancho, original.Textos[0].Medida.Ancho);
}

TEST(Trazos, LosAlteradosAcabanElDibujo) {
    LienzoGrabador original(400, 300);
    const std::string trazos = DibujoDePrueba(original);
    for (std::size_t i = 0; i < trazos.size(); ++i) {
        for (const int cambio : {1, 0x80, 0xFF}) {
            std::string alterados = trazos;
            alterados[i] = static_cast<char>(alterados[i] ^ cambio);
            LienzoGrabador copia(400, 300);
            Repetir(alterados, copia);
            Repetir(alterados.substr(0, i), copia);
            EXPECT_LE(TextosDe(alterados).size(), 2U);
        }
    }
    EXPECT_FALSE(MedidaDe("TRAZOS1\n"));
}

}  // namespace
}  // namespace trabex
