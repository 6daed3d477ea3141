// The sketches of a slab on 1000 by 600: a metre of 8 is 100 pixels, a line of 8 points 14 tall and its
// letters 5.87 wide; and the symbols of its supports.

#include <set>

#include "EnHoja.h"
#include "drawing/losa/Apoyos.h"
#include "drawing/losa/GraficoLosaDatos.h"

namespace trabex {
namespace {

using Puntos = std::vector<PuntoLienzo>;

/// What is drawn, as texts: "5,00 @338,90", a line's two ends, and a figure's colour with its first and third
/// corners.
std::multiset<std::string> Dibujado(const LienzoGrabador& lienzo) {
    std::multiset<std::string> dicho;
    const auto en = [](PuntoLienzo p) { return " @" + std::to_string(p.x) + "," + std::to_string(p.y); };
    for (const auto& t : lienzo.Textos) dicho.insert(t.Texto + en(t.Lugar));
    for (const auto& l : lienzo.Lineas) dicho.insert("linea" + en(l.Puntos[0]) + en(l.Puntos[1]));
    for (const auto& f : lienzo.Poligonos)
        dicho.insert(std::to_string(f.Relleno->R) + "#" + std::to_string(f.Puntos.size()) + en(f.Puntos[0]) +
                     en(f.Puntos[2]));
    return dicho;
}
void Esta(const LienzoGrabador& lienzo, const std::vector<std::string>& esperados) {
    const auto dicho = Dibujado(lienzo);
    for (const std::string& esperado : esperados) EXPECT_EQ(dicho.count(esperado), 1U) << esperado;
}

struct BocetoPrueba : testing::Test {
    BocetoPrueba() { Vista.CuadriculaVisible = false; }

    Losa Datos = prueba::LosaContinua({5, 3}, 300, 100);
    EstadoVista Vista;
    LienzoGrabador Lienzo{1000, 600};
};

TEST_F(BocetoPrueba, LosDatosConSuSeccion) {
    Datos.JuntasD = {{}, {2, 0, 0}, {4, 1, 1}};  // the last of no joint
    DibujeLosaDatos(Lienzo, Vista, Datos, {2, 1}, {});
    Esta(Lienzo,
         {"5,00 @338,90", "3,00 @738,90", "(0,00 ; 0,00) @562,136", "1 @97,243", "2 @597,243", "3 @897,243",
          // width of a rib, spacing, topping and depth of the section
          "0,10 @420,523", "0,50 @614,545", "0,05 @646,406", "0,25 @330,449", "linea @370,530 @414,530",
          "linea @392,552 @608,552", "linea @640,402 @640,424", "linea @360,402 @360,510",
          "linea @100,105 @600,105",
          // the marked span is yellow
          "205#4 @100,195 @600,165", "255#4 @600,195 @900,165", "222#8 @370,402 @630,510"});
    EXPECT_EQ(Lienzo.Textos.size(), 10U);
    EXPECT_EQ(Lienzo.Hallar("5,00")->Tinta, (Color{26, 33, 34}));
    EXPECT_EQ(Lienzo.Hallar("3,00")->Tinta, (Color{196, 84, 20}));
    EXPECT_EQ(Lienzo.Circulos[Lienzo.Circulos.size() - 3].Borde->Ancho, 2);  // of the marked joint

    Datos.OpcionMaciza = true;
    Datos.Tramos[1].LT = 0;  // drawn as one of 1 m
    Datos.Tramos[2].LT = 7;
    Datos.JuntasD.resize(1);
    DibujeLosaExportar(Lienzo, Vista, Datos, {});
    Esta(Lienzo, {"1,00 @776,523", "0,20 @190,449", "0,00 @138,90", "222#4 @230,402 @770,510",
                  "205#4 @100,195 @200,165"});
    Vista.Zoom = 0.5;  // about the middle of the canvas, the section too
    Vista.PanY = 40;
    DibujeLosaExportar(Lienzo, Vista, Datos, {});
    Esta(Lienzo, {"222#4 @365,391 @635,445"});
}

TEST_F(BocetoPrueba, LasCargasDeCadaTramo) {
    Datos.Tramos[1].p1 = 800;
    Datos.Tramos[1].L1 = 2;
    Datos.Tramos[2].p1 = 500;
    Datos.Tramos[2].L1 = 4;  // beyond the span
    DibujeLosaCargas(Lienzo, Vista, Datos, {2, 0}, {});
    Esta(Lienzo,
         {"800 @318,213", "300 + 100 @324,258", "300 + 100 @724,258", "1 @97,363", "2 @597,363", "3 @897,363",
          "189#7 @300,245 @304,230", "248#4 @100,285 @600,245", "255#4 @600,285 @900,245"});
    EXPECT_EQ(Lienzo.Textos.size(), 6U);
    Datos.JuntasD.push_back({2, 0, 0.5});  // 4.5 m still fit; the slab's middle height goes to the canvas's
    DibujeLosaCargas(Lienzo, Vista, Datos, {}, {});
    Esta(Lienzo, {"300 + 100 @324,258", "248#4 @100,310 @600,220"});
    Datos.JuntasD.back().y = -0.5;
    DibujeLosaDatos(Lienzo, Vista, Datos, {}, {});
    EXPECT_DOUBLE_EQ(Vista.Escala, 600 * 0.55 / 3.7);
    Esta(Lienzo, {"(0,00 ; -0,50) @548,162"});
    Datos.Tramos[1].Wp = Datos.Tramos[1].WV = 0;
    DibujeLosaCargas(Lienzo, Vista, Datos, {}, {});
    EXPECT_EQ(Lienzo.DeColor({248, 214, 210}).size(), 1U);
    VaciarLosa(Datos);
    DibujeLosaCargas(Lienzo, Vista, Datos, {}, {});
    EXPECT_TRUE(Lienzo.Textos.empty());
}

TEST_F(BocetoPrueba, SeDibujanConDatosAMedioEntrar) {
    Datos.Tramos[2].LT = 0;
    Datos.JuntasD.push_back({9, 1, 1});
    Datos.Ejes.pop_back();
    DibujeLosaDatos(Lienzo, Vista, Datos, {2, 0}, {});
    EXPECT_TRUE(Lienzo.Hallar("0,00") && Lienzo.Hallar("5,00"));
    DibujeLosaCargas(Lienzo, Vista, Datos, {1, 0}, {});
    EXPECT_TRUE(Lienzo.Hallar("300 + 100"));
}

TEST(Apoyos, CadaTipoTieneSuSimbolo) {
    LienzoGrabador lienzo(1000, 600);
    const EstadoVista vista{1, 0, 0, 100, 0.01, 500, 300, true, false};
    struct Caso {
        std::int16_t Tipo;
        Puntos Figura, Ruedas, Regla;
    };
    // The joint at (400, 250), its band's foot at 265.
    for (const Caso& caso :
         {Caso{ApoyoFijo, {{400, 265}, {380, 285}, {420, 285}}, {}, {{370, 285}, {430, 285}}},
          Caso{RodilloEnX, {{400, 265}, {380, 285}, {420, 285}}, {{390, 290}, {410, 290}}, {}},
          Caso{RodilloEnY,
               {{400, 285}, {380, 265}, {380, 305}},
               {{375, 275}, {375, 295}},
               {{370, 265}, {370, 305}}},
          Caso{Empotramiento, {{390, 225}, {410, 225}, {410, 275}, {390, 275}}, {}, {}},
          Caso{SinApoyo, {}, {}, {}}, Caso{0, {}, {}, {}}}) {
        lienzo.Limpiar();
        DibujeApoyo(Plano(lienzo, vista, "Tahoma"), -1, 0.5, caso.Tipo);
        EXPECT_EQ(lienzo.Poligonos.empty() ? Puntos{} : lienzo.Poligonos.at(0).Puntos, caso.Figura);
        Puntos ruedas;
        for (const auto& circulo : lienzo.Circulos) ruedas.push_back(circulo.Puntos[0]);
        EXPECT_EQ(ruedas, caso.Ruedas);
        EXPECT_EQ(lienzo.Lineas.empty() ? Puntos{} : lienzo.Lineas.at(0).Puntos, caso.Regla) << caso.Tipo;
    }
}

}  // namespace
}  // namespace trabex
