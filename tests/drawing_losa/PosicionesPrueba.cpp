// Where every text and figure of a slab's sheets stands, against places worked out by hand. The canvases are
// chosen so that a metre is 100 pixels: 1000 · 0.65 / 6.5 for 6.5 m of slab, 2000 · 0.70 / 14 for 14 m. The
// recording canvas makes a line of 8.5 points 15 pixels tall and each of its letters 187/30 wide, one of 9
// points 16 and 6.6, one of 11.5 points 20 and 8.43, one of 7 points 13 and 5.13.

#include <set>

#include <gtest/gtest.h>

#include "drawing/losa/Apoyos.h"
#include "drawing/losa/GraficoLosa.h"
#include "drawing/losa/GraficoLosaDatos.h"
#include "slab/CalcularLosa.h"
#include "support/LienzoGrabador.h"
#include "support/LosasDePrueba.h"

namespace trabex {

using namespace dibujo;
using namespace dibujo::losa;
using namespace losas;
namespace {

using prueba::LienzoGrabador;
using Puntos = std::vector<PuntoLienzo>;

std::string Descrito(const std::string& texto, int x, int y, int decimas = 0) {
    std::string dicho = texto + " @" + std::to_string(x) + "," + std::to_string(y);
    return decimas == 0 ? dicho : dicho + " /" + std::to_string(decimas);
}

using Escritos = std::multiset<std::string>;
Escritos EscritosEn(const LienzoGrabador& lienzo) {
    Escritos escritos;
    for (const auto& t : lienzo.Textos) escritos.insert(Descrito(t.Texto, t.Lugar.x, t.Lugar.y, t.Decimas));
    return escritos;
}

bool HayLinea(const LienzoGrabador& lienzo, const Puntos& puntos, EstiloLinea estilo, int ancho = 1) {
    return std::any_of(lienzo.Lineas.begin(), lienzo.Lineas.end(), [&](const auto& linea) {
        return linea.Puntos == puntos && linea.Borde->Estilo == estilo && linea.Borde->Ancho == ancho;
    });
}

bool HayPoligono(const LienzoGrabador& lienzo, const Puntos& puntos, Color relleno) {
    const auto deColor = lienzo.DeColor(relleno);
    return std::any_of(deColor.begin(), deColor.end(), [&](const auto& f) { return f.Puntos == puntos; });
}

/// The three points of a block arrow that tell where it is and where it looks.
bool HayFlecha(const LienzoGrabador& lienzo, PuntoLienzo punta, int haciaY, int largo) {
    const auto flechas = lienzo.DeColor({189, 207, 240});
    return std::any_of(flechas.begin(), flechas.end(), [&](const auto& f) {
        return f.Puntos[0] == punta && f.Puntos[3].y == punta.y - haciaY * largo;
    });
}

/// Two spans of 4 and 2.5 m, axes at 175, 575 and 825, the slab's level at 198.
struct HojaPrueba : testing::Test {
    HojaPrueba() {
        Hoja.Vista.CuadriculaVisible = false;
        Datos.Tramos[1].p1 = 1000;
        Datos.Tramos[1].L1 = 1;
    }
    void Dibujar(std::uint8_t vista) {
        Hoja.VistaActual = vista;
        RedibujeVista(Lienzo, Hoja, {Datos, Generales, Resultados});
        EXPECT_EQ(Hoja.Vista.Escala, 100);
    }

    Losa Datos = prueba::LosaContinua({4, 2.5}, 300, 100);
    DatosGenerales Generales;
    ResultadosLosa Resultados;
    HojaLosa Hoja;
    LienzoGrabador Lienzo{1000, 1100};
};

TEST_F(HojaPrueba, LaGeometriaEstaDondeSeDice) {
    Dibujar(VistaGeometria);
    const Escritos esperados{
        // in and over the load band, the point load's value turned and beside its arrow
        Descrito("400", 366, 156), Descrito("400", 690, 156), Descrito("1000", 290, 141, 900),
        // below the slab's band, then in the circles
        Descrito("4,00", 362, 215), Descrito("2,50", 688, 215), Descrito("1", 170, 319),
        Descrito("2", 570, 319), Descrito("3", 820, 319),
        // the dimension chain
        Descrito("DESPIECE:", 123, 852), Descrito("4,00", 365, 844), Descrito("2,50", 690, 844),
        // the titles, centred on the slab
        Descrito("LOSA NERVADA: E = 0,25 m", 421, 918), Descrito("PRUEBA", 480, 934),
        Descrito("(GEOMETRIA DE LA LOSA)", 427, 950)};
    EXPECT_EQ(EscritosEn(Lienzo), esperados);

    EXPECT_TRUE(HayLinea(Lienzo, {{175, 198}, {825, 198}}, EstiloLinea::Punteada));
    EXPECT_TRUE(HayPoligono(Lienzo, {{175, 213}, {575, 213}, {575, 183}, {175, 183}}, {156, 177, 182}));
    EXPECT_TRUE(HayPoligono(Lienzo, {{575, 183}, {825, 183}, {825, 143}, {575, 143}}, {248, 199, 199}));
    EXPECT_TRUE(HayFlecha(Lienzo, {275, 143}, 1, 50));
    ASSERT_EQ(Lienzo.Circulos.size(), 3U + 2 * 2U);  // axes, and two wheels under each roller
    for (std::size_t eje = 0; eje < 3; ++eje) {
        const std::int32_t x = std::array{175, 575, 825}[eje];
        EXPECT_EQ(Lienzo.Circulos[eje].Puntos, (Puntos{{x, 329}, {x + 26, 329}}));
        EXPECT_EQ(Lienzo.Circulos[eje].Relleno, (Color{255, 244, 214}));
        EXPECT_TRUE(HayLinea(Lienzo, {{x, 213}, {x, 273}}, EstiloLinea::Solida));
        EXPECT_TRUE(HayLinea(Lienzo, {{x, 366}, {x, 878}}, EstiloLinea::Punteada));
    }
    EXPECT_DOUBLE_EQ(Lienzo.Hallar("1")->Letra.Puntos, 11.5);
    EXPECT_TRUE(Lienzo.Hallar("1")->Letra.Negrita);
    EXPECT_DOUBLE_EQ(Lienzo.Hallar("DESPIECE:")->Letra.Puntos, 7);
    EXPECT_DOUBLE_EQ(Lienzo.Hallar("PRUEBA")->Letra.Puntos, 9);
    EXPECT_TRUE(Lienzo.Hallar("PRUEBA")->Letra.Negrita);
}

TEST_F(HojaPrueba, CadaValorDelDisenoEstaEnSuFila) {
    for (const auto& [caso, factor] : {std::pair{CasoPermanente, 10.0}, {CasoVariable, 1.0}}) {
        Resultados.ResultadoTramo[caso].resize(3);
        for (const double eje : {0, 1, 2, 3}) {
            Resultados.ResultadoJunta[caso].emplace_back();
            Resultados.ResultadoJunta[caso].back().RV = 10 * factor * eje;
        }
    }
    Resultados.ResultadoTramo[CasoPermanente][1].MomentoA = -10;  // by 1.2
    Resultados.ResultadoTramo[CasoVariable][1].MomentoB = -1000;
    Resultados.ResultadoTramo[CasoPermanente][2].MomentoA = -50;
    Resultados.ResultadoTramo[CasoVariable][2].MomentoB = -5;  // by 1.6
    Resultados.DisenoEje = {
        {}, {1.11, 9, 0, 0.31, 0, 0.8}, {2.22, 9, 0.52, 0.3, 0.9, 0.7}, {3.33, 9, 0.75, 0, 0.6, 0}};
    Resultados.DisenoTramo = {{}, {700, 1.5, 9, 4.44}, {800, 1.2, 9, 5.55}};
    Dibujar(VistaGeometria);
    Escritos esperados;
    for (std::size_t i = 0; i < 8; ++i) {  // the slab's own
        const auto& t = Lienzo.Textos[i];
        esperados.insert(Descrito(t.Texto, t.Lugar.x, t.Lugar.y, t.Decimas));
    }
    Dibujar(VistaDiseno);
    esperados.merge(Escritos{
        // one rib every half metre: reactions are doubled
        Descrito("CP (kgf/metro):", 40, 508),
        Descrito("200", 166, 508),
        Descrito("400", 566, 508),
        Descrito("600", 816, 508),  //
        Descrito("CV (kgf/metro):", 40, 550),
        Descrito("20", 169, 550),
        Descrito("40", 569, 550),
        Descrito("60", 819, 550),  //
        Descrito("Total (kgf/metro):", 40, 592),
        Descrito("220", 166, 592),
        Descrito("440", 566, 592),
        Descrito("660", 816, 592),  //
        Descrito("Macizados (m):", 40, 634),
        Descrito("0,31", 180, 634),
        Descrito("0,52", 546, 634),
        Descrito("0,75", 796, 634),  //
        Descrito("Mu Sup (kgf-m):", 40, 676),
        Descrito("-12", 166, 676),
        Descrito("-60", 566, 676),
        Descrito("-8", 819, 676),  //
        Descrito("Mu Inf (kgf-m):", 40, 718),
        Descrito("700", 366, 718),
        Descrito("800", 691, 718),
        Descrito("As Sup (cm2):", 40, 760),
        Descrito("1,11", 163, 760),
        Descrito("2,22", 563, 760),
        Descrito("3,33", 813, 760),  //
        Descrito("As Inf (cm2):", 40, 802),
        Descrito("4,44", 363, 802),
        Descrito("5,55", 688, 802),
        Descrito("Puntos Inflexión (m):", 40, 844),
        Descrito("0,80", 243, 850),
        Descrito("0,90", 473, 850),
        Descrito("0,70", 633, 850),
        Descrito("0,60", 753, 850),  //
        Descrito("Despiece:", 40, 886),
        Descrito("AsMín = 0,75 cm2", 450, 886),  // 14/4200 · 10 · 22.5
        Descrito("LOSA NERVADA: E = 0,25 m   (DISEÑO Y REACCIONES DE SERVICIO POR METRO LINEAL SOBRE LAS "
                 "VIGAS)",
                 193, 940),
        Descrito("PRUEBA", 480, 956)});
    EXPECT_EQ(EscritosEn(Lienzo), esperados);

    const auto fondo = [](int arriba) {
        return Puntos{{36, arriba}, {871, arriba}, {871, arriba + 42}, {36, arriba + 42}};
    };
    EXPECT_TRUE(HayPoligono(Lienzo, fondo(621), {226, 233, 214}));
    EXPECT_TRUE(HayPoligono(Lienzo, fondo(663), {232, 223, 244}));
    EXPECT_EQ(Lienzo.DeColor({232, 223, 244}).size(), 1U);  // of the hogging moments alone
    EXPECT_EQ(Lienzo.DeColor({224, 233, 248}).size(), 1U);
    EXPECT_TRUE(HayPoligono(Lienzo, fondo(747), {224, 233, 248}));
    for (const std::int32_t x : {255, 485, 645, 765})
        EXPECT_TRUE(HayPoligono(Lienzo, {{x, 831}, {x + 6, 843}, {x - 6, 843}}, {255, 170, 170}));
    for (const std::int32_t y : {873, 915})
        EXPECT_TRUE(HayLinea(Lienzo, {{175, y}, {825, y}}, EstiloLinea::Solida));
}

TEST_F(HojaPrueba, ValoresQueSeEncontrarianBajanDeLinea) {
    Datos = prueba::LosaContinua({0.2, 0.2, 6.1}, 300, 100);  // axes at 175, 195, 215, 825
    Resultados.DisenoEje = {{}, {1.11}, {2.22}, {3.33}, {4.44}};
    Dibujar(VistaDiseno);
    const auto lugar = [&](const char* texto) { return Lienzo.Hallar(texto)->Lugar; };
    EXPECT_EQ(lugar("1,11"), (PuntoLienzo{163, 753}));  // two lines of 15 in a row of 42 that begins at 747
    EXPECT_EQ(lugar("2,22"), (PuntoLienzo{183, 768}));
    EXPECT_EQ(lugar("3,33"), (PuntoLienzo{203, 753}));
    EXPECT_EQ(lugar("4,44"), (PuntoLienzo{813, 753}));
    EXPECT_EQ(lugar("As Sup (cm2):").y, 760);

    Hoja.OpcionCarga = CargaPorCasos;  // 57 wide: the second goes over the band, the third has its span
    Dibujar(VistaGeometria);
    const Escritos escritos = EscritosEn(Lienzo);
    EXPECT_EQ(escritos.count(Descrito("300 + 100", 156, 156)), 1U);
    EXPECT_EQ(escritos.count(Descrito("300 + 100", 176, 128)), 1U);
    EXPECT_EQ(escritos.count(Descrito("300 + 100", 492, 156)), 1U);
    // Lengths go below one another: 25 wide at 185 and 205.
    EXPECT_EQ(escritos.count(Descrito("0,20", 172, 215)), 1U);
    EXPECT_EQ(escritos.count(Descrito("0,20", 192, 230)), 1U);
}

/// One span of 6.5 m under 520 kgf/m: 1690 kgf at each end, 2746.25 kgf·m in the middle.
TEST_F(HojaPrueba, LosDiagramasTienenSusValoresEnSuBanda) {
    Datos = prueba::LosaContinua({6.5}, 300, 100);
    CalcularLosa(Datos, Generales, Resultados);
    Dibujar(VistaFuerzas);
    const Escritos esperados{
        Descrito("400", 490, 156), Descrito("6,50", 488, 215), Descrito("1", 170, 319),
        Descrito("2", 820, 319),
        // shears: the axis of their band at 495, 80 pixels the largest
        Descrito("VU (kgf):", 36, 488), Descrito("1690", 183, 378), Descrito("1690", 792, 598),
        // moments: at 773, on the side in tension
        Descrito("MU (kgf-m):", 24, 766), Descrito("2746", 508, 876),
        // reactions, below both bands
        Descrito("(kgf/Nervio):", 11, 912), Descrito("1690", 183, 930), Descrito("1690", 833, 930),
        Descrito("LOSA NERVADA: E = 0,25 m", 421, 958), Descrito("PRUEBA", 480, 974),
        Descrito("(DIAGRAMAS DE CORTES Y MOMENTOS MAYORADOS)", 361, 990),
        Descrito("COMBINACIONES DE CARGA (U = 1,20 CP + 1,60 CV)", 348, 1006)};
    EXPECT_EQ(EscritosEn(Lienzo), esperados);
    EXPECT_TRUE(HayFlecha(Lienzo, {175, 415}, 1, 50));
    EXPECT_TRUE(HayFlecha(Lienzo, {825, 575}, -1, 50));
    EXPECT_TRUE(HayFlecha(Lienzo, {500, 853}, -1, 50));
    EXPECT_TRUE(HayFlecha(Lienzo, {175, 912}, -1, 40));
    EXPECT_TRUE(HayFlecha(Lienzo, {825, 912}, -1, 40));

    const auto cortes = Lienzo.DeColor({165, 191, 235});
    const auto momentos = Lienzo.DeColor({247, 194, 187});
    ASSERT_EQ(cortes.size(), 1U);
    ASSERT_EQ(momentos.size(), 1U);
    const Puntos& corte = cortes.front().Puntos;
    const Puntos& momento = momentos.front().Puntos;
    // A straight line, closed along its axis at both supports.
    EXPECT_EQ(corte, (Puntos{{175, 495}, {175, 415}, {825, 575}, {825, 495}}));
    // The largest at 3.25 m; between the points kept no station is a pixel off: those of 0.25 and 1 m, which
    // have 406.25 and 1430 kgf·m.
    EXPECT_EQ((Puntos{momento.begin(), momento.begin() + 2}), (Puntos{{175, 773}, {175, 773}}));
    EXPECT_EQ(momento.back(), (PuntoLienzo{825, 773}));
    for (const auto& [x, y] : {std::pair{200, 785}, {275, 815}, {500, 853}}) {
        const auto tras = std::find_if(momento.begin() + 2, momento.end(), [&](auto p) { return p.x >= x; });
        const PuntoLienzo antes = *(tras - 1);
        EXPECT_NEAR(antes.y + 1.0 * (tras->y - antes.y) * (x - antes.x) / (tras->x - antes.x), y, 1.1);
    }
}

/// Both ends fixed: -1830.8 kgf·m at each, half of it in the middle.
TEST_F(HojaPrueba, LosMomentosDeApoyoVanHaciaArriba) {
    Datos = prueba::LosaContinua({6.5}, 300, 100);
    Datos.OpcionMaciza = true;
    for (EjeLosa& eje : Datos.Ejes) eje.Tipo = Empotramiento;
    CalcularLosa(Datos, Generales, Resultados);
    Hoja.OpcionCarga = CargaPorCasos;
    Dibujar(VistaFuerzas);
    const Escritos escritos = EscritosEn(Lienzo);
    EXPECT_EQ(escritos.count(Descrito("300 + 100", 472, 156)), 1U);
    EXPECT_TRUE(HayPoligono(Lienzo, {{175, 183}, {825, 183}, {825, 143}, {175, 143}}, {248, 199, 199}));
    EXPECT_EQ(escritos.count(Descrito("-1831", 183, 656)), 1U);
    EXPECT_EQ(escritos.count(Descrito("-1831", 785, 656)), 1U);
    EXPECT_EQ(escritos.count(Descrito("(kgf/metro):", 18, 912)), 1U);
    EXPECT_EQ(escritos.count(Descrito("LOSA MACIZA: E = 0,20 m", 424, 958)), 1U);
    const auto* campo = Lienzo.Hallar("915");
    ASSERT_NE(campo, nullptr);
    EXPECT_EQ(campo->Lugar.x, 508);
    EXPECT_NEAR(campo->Lugar.y, 836, 1);
    EXPECT_TRUE(HayFlecha(Lienzo, {175, 693}, 1, 50));
    EXPECT_TRUE(HayFlecha(Lienzo, {500, 813}, -1, 50));
}

/// Axes at 175, 195 and 825: the second circle of 52 goes below the first, and all that follows down with it.
TEST_F(HojaPrueba, UnaReaccionSinSitioBajaUnRenglonYLaQueLevantaMiraAbajo) {
    Datos = prueba::LosaContinua({0.2, 6.3}, 300, 100);
    Resultados.ResultadoJunta[CasoPermanente] = {{}, {}, {}, {}};
    Resultados.ResultadoJunta[CasoVariable] = Resultados.ResultadoJunta[CasoPermanente];
    for (const std::size_t eje : {1U, 2U, 3U})
        Resultados.ResultadoJunta[CasoPermanente][eje].RV =
            eje == 1 ? -1000 : 1000.0 * static_cast<double>(eje);
    Dibujar(VistaFuerzas);
    const Escritos escritos = EscritosEn(Lienzo);
    EXPECT_EQ(escritos.count(Descrito("-1200", 183, 981)), 1U);
    EXPECT_EQ(escritos.count(Descrito("2400", 203, 996)), 1U);
    EXPECT_EQ(escritos.count(Descrito("3600", 833, 981)), 1U);
    EXPECT_TRUE(HayFlecha(Lienzo, {175, 1003}, 1, 40));
    EXPECT_TRUE(HayFlecha(Lienzo, {195, 963}, -1, 40));
}

TEST_F(HojaPrueba, LasReaccionesSolasDejanTresFilasYSusTitulos) {
    Hoja.SoloReacciones = true;
    Dibujar(VistaDiseno);
    const Escritos escritos = EscritosEn(Lienzo);
    EXPECT_EQ(escritos.size(), 8U + 3 * 4U + 3U);
    EXPECT_EQ(escritos.count(Descrito("Total (kgf/metro):", 54, 592)), 1U);  // 113 wide, clear of its "0"
    EXPECT_EQ(escritos.count(Descrito("LOSA NERVADA: E = 0,25 m", 421, 646)), 1U);
    EXPECT_EQ(escritos.count(Descrito("PRUEBA", 480, 662)), 1U);
    EXPECT_EQ(escritos.count(Descrito("REACCIONES SOBRE LAS VIGAS", 414, 678)), 1U);
}

TEST_F(HojaPrueba, EnPapelLosTextosSonMasCortos) {
    Hoja.VistaActual = VistaDiseno;
    const auto textos = [&](std::uint8_t vista, bool maciza, const EstiloHoja& estilo) {
        Hoja.VistaActual = vista;
        Datos.OpcionMaciza = maciza;
        RedibujeVista(Lienzo, Hoja, {Datos, Generales, Resultados}, estilo);
        std::set<std::string> vistos;
        for (const auto& t : Lienzo.Textos) vistos.insert(t.Texto);
        return vistos;
    };
    using Textos = std::vector<const char*>;
    const auto estan = [](const std::set<std::string>& vistos, const Textos& esperados) {
        for (const char* texto : esperados) EXPECT_EQ(vistos.count(texto), 1U) << texto;
    };
    estan(textos(VistaGeometria, false, HojaEnPapel), {"LOSA NERVADA: H = 0,25 m  (Geometría)", "PRUEBA"});
    estan(textos(VistaGeometria, true, HojaEnPapel), {"LOSA MACIZA: H = 0,20 m  (Geometría)", "DESPIECE:"});
    estan(textos(VistaFuerzas, false, HojaEnPapel), {"Vu (kgf):", "Mu (kgf-m):", "(kgf/Nervio):"});
    estan(textos(VistaDiseno, false, HojaEnPapel),
          {"CP (kgf/ml):", "CV (kgf/ml):", "Total (kgf/ml):", "Macizado (m):", "Mu Sup(kgf-m):",
           "Mu Inf (kgf-m):", "As Sup(cm2):", "As Inf(cm2):", "Inflexión (m):", "Despiece:",
           "AsMín = 0,75 cm2", "LOSA NERVADA: E = 0,25 m   (ANALISIS Y DISEÑO)"});
    estan(textos(VistaDiseno, true, HojaEnPapel), {"As Sup(cm2/m):", "As Inf(cm2/m):", "AsMín = 3,50 cm2/m"});
    estan(textos(VistaDiseno, true, HojaEnPantalla), {"As Sup (cm2/m):", "As Inf (cm2/m):"});
    EXPECT_EQ(textos(9, false, HojaEnPapel).count("AsMín = 0,75 cm2"), 0U);  // no such sheet: as it stood
}

TEST(TextosDeLosa, DicenLoSuyo) {
    const Separadores coma;
    EXPECT_EQ(TextoDeCorrimiento({1, 0.1, 0}, coma), "0,10");
    EXPECT_EQ(TextoDeCorrimiento({1, 0, -0.2}, coma), "-0,20");
    EXPECT_EQ(TextoDeCorrimiento({1, 0.1, -0.2}, coma), "0,10 ; -0,20");
    EXPECT_EQ(TextoDeCarga({5, 2147483647, 1, 0, 0}, CargaTotal), "2147483648");
    EXPECT_EQ(TextoDeCarga({5, 300, 90, 0, 0}, CargaSinUso), "390");
}

/// Spans of 8 and 6 m, the middle axis half a metre up: axes at 300, 1100 and 1700, the origin's row at 241.
TEST_F(HojaPrueba, UnaLosaEscalonadaSigueSuPendiente) {
    Datos = prueba::LosaContinua({8, 6}, 300, 100);
    Datos.JuntasD.push_back({2, 0, 0.5});
    Datos.Tramos[1].p1 = 500;
    Datos.Tramos[1].L1 = 3;
    Datos.Ejes[3].Tipo = SinApoyo;
    Lienzo = LienzoGrabador(2000, 1200);
    CalcularLosa(Datos, Generales, Resultados);
    Datos.JuntasD.push_back({4, 3, 3});  // no such joint
    Dibujar(VistaGeometria);
    EXPECT_TRUE(HayPoligono(Lienzo, {{300, 256}, {1100, 206}, {1100, 176}, {300, 226}}, {156, 177, 182}));
    EXPECT_TRUE(HayPoligono(Lienzo, {{1100, 176}, {1700, 226}, {1700, 186}, {1100, 136}}, {248, 199, 199}));
    EXPECT_TRUE(HayFlecha(Lienzo, {600, 167}, 1, 50));  // 0.1875 + 0.55 m over the origin
    EXPECT_TRUE(HayLinea(Lienzo, {{1100, 201}, {1100, 175}}, EstiloLinea::Solida, 2));
    EXPECT_TRUE(HayLinea(Lienzo, {{1100, 206}, {1100, 266}}, EstiloLinea::Solida));
    EXPECT_TRUE(HayLinea(Lienzo, {{1100, 359}, {1100, 921}}, EstiloLinea::Punteada));
    const auto lugar = [&](const char* texto) { return Lienzo.Hallar(texto)->Lugar; };
    EXPECT_EQ(lugar("0,50"), (PuntoLienzo{1088, 119}));
    EXPECT_EQ(lugar("8,00"), (PuntoLienzo{688, 234}));
    EXPECT_EQ(lugar("2").y, 312);
    std::vector<int> giros;
    for (const auto& t : Lienzo.Textos) {
        if (t.Texto == "400") giros.push_back(t.Decimas);
    }
    EXPECT_EQ(giros, (std::vector{40, -50}));  // 3.6 and -4.8 degrees

    Dibujar(VistaFuerzas);
    const double VA =
        1.2 * Resultados.ResultadoTramo[1][1].CorteA + 1.6 * Resultados.ResultadoTramo[2][1].CorteA;
    const auto subida = static_cast<std::int32_t>(std::lrint(80 * VA / Resultados.MaxCorte));
    const auto primera = Lienzo.DeColor({165, 191, 235}).front().Puntos;
    EXPECT_EQ(primera[0], (PuntoLienzo{300, 538}));
    EXPECT_EQ(primera[1], (PuntoLienzo{300, 538 - subida}));
    EXPECT_EQ(primera.back(), (PuntoLienzo{1100, primera[0].y - 50}));  // up the slope
    EXPECT_EQ(Lienzo.DeColor({247, 194, 187}).front().Puntos[0], (PuntoLienzo{300, 816}));
    EXPECT_EQ(lugar("VU (kgf):").y, 530);

    Dibujar(VistaDiseno);
    EXPECT_EQ(lugar("CP (kgf/metro):").y, 614);  // the ten rows of 42 end 7.8 m below the origin
    EXPECT_EQ(lugar("Despiece:").y, 992);
}

/// Sketches on 1000 by 600: a metre of 8 is 100 pixels, a line of 8 points 14 tall and its letters 5.87 wide.
struct BocetoPrueba : testing::Test {
    BocetoPrueba() { Vista.CuadriculaVisible = false; }

    Losa Datos = prueba::LosaContinua({5, 3}, 300, 100);
    EstadoVista Vista;
    LienzoGrabador Lienzo{1000, 600};
    static constexpr Color Marca{255, 205, 96};
};

TEST_F(BocetoPrueba, LosDatosConSuSeccionNervada) {
    Datos.JuntasD.push_back({2, 0, 0});
    Datos.JuntasD.push_back({4, 1, 1});  // no such joint
    DibujeLosaDatos(Lienzo, Vista, Datos, {2, 1}, {});
    const Escritos esperados{Descrito("5,00", 338, 90), Descrito("3,00", 738, 90),
                             Descrito("(0,00 ; 0,00)", 562, 136), Descrito("1", 97, 243),
                             Descrito("2", 597, 243), Descrito("3", 897, 243),
                             // width of a rib, spacing, topping and depth of the section
                             Descrito("0,10", 420, 523), Descrito("0,50", 614, 545),
                             Descrito("0,05", 646, 406), Descrito("0,25", 330, 449)};
    EXPECT_EQ(EscritosEn(Lienzo), esperados);
    EXPECT_EQ(Lienzo.Hallar("5,00")->Tinta, (Color{26, 33, 34}));
    EXPECT_EQ(Lienzo.Hallar("3,00")->Tinta, (Color{196, 84, 20}));  // marked
    EXPECT_TRUE(HayPoligono(Lienzo, {{100, 195}, {600, 195}, {600, 165}, {100, 165}}, {205, 216, 219}));
    EXPECT_TRUE(HayPoligono(Lienzo, {{600, 195}, {900, 195}, {900, 165}, {600, 165}}, Marca));
    EXPECT_TRUE(HayPoligono(
        Lienzo,
        {{370, 402}, {630, 402}, {630, 510}, {586, 510}, {586, 424}, {414, 424}, {414, 510}, {370, 510}},
        {222, 226, 227}));
    EXPECT_TRUE(HayLinea(Lienzo, {{600, 205}, {600, 155}}, EstiloLinea::Solida, 2));
    for (const Puntos& cota : std::vector<Puntos>{{{100, 105}, {600, 105}},
                                                  {{370, 530}, {414, 530}},
                                                  {{392, 552}, {608, 552}},
                                                  {{640, 402}, {640, 424}},
                                                  {{360, 402}, {360, 510}}})
        EXPECT_TRUE(HayLinea(Lienzo, cota, EstiloLinea::Solida)) << cota[0].x;
    const auto& nombre = Lienzo.Circulos[Lienzo.Circulos.size() - 3];
    EXPECT_EQ(nombre.Puntos, (Puntos{{100, 250}, {110, 250}}));
    EXPECT_EQ(nombre.Borde->Ancho, 2);
    EXPECT_EQ(nombre.Relleno, Marca);
    EXPECT_EQ(Lienzo.Circulos.back().Relleno, (Color{255, 244, 214}));
}

TEST_F(BocetoPrueba, LaSeccionMacizaYUnTramoSinLongitud) {
    Datos.OpcionMaciza = true;
    Datos.Tramos[1].LT = 0;  // drawn as one of 1 m
    Datos.Tramos[2].LT = 7;
    DibujeLosaExportar(Lienzo, Vista, Datos, {});
    const Escritos escritos = EscritosEn(Lienzo);
    EXPECT_EQ(escritos.count(Descrito("1,00", 776, 523)), 1U);
    EXPECT_EQ(escritos.count(Descrito("0,20", 190, 449)), 1U);
    EXPECT_EQ(escritos.count(Descrito("0,00", 138, 90)), 1U);
    EXPECT_EQ(Lienzo.Hallar("0,00")->Tinta, (Color{196, 84, 20}));
    EXPECT_TRUE(HayPoligono(Lienzo, {{230, 402}, {770, 402}, {770, 510}, {230, 510}}, {222, 226, 227}));
    EXPECT_TRUE(HayPoligono(Lienzo, {{100, 195}, {200, 195}, {200, 165}, {100, 165}}, {205, 216, 219}));
    Vista.Zoom = 0.5;  // about the middle of the canvas, the section too
    Vista.PanY = 40;
    DibujeLosaExportar(Lienzo, Vista, Datos, {});
    EXPECT_TRUE(HayPoligono(Lienzo, {{365, 391}, {635, 391}, {635, 445}, {365, 445}}, {222, 226, 227}));
}

TEST_F(BocetoPrueba, LasCargasDeCadaTramo) {
    Datos.Tramos[1].p1 = 800;
    Datos.Tramos[1].L1 = 2;
    Datos.Tramos[2].p1 = 500;
    Datos.Tramos[2].L1 = 4;  // beyond the span
    DibujeLosaCargas(Lienzo, Vista, Datos, {2, 0}, {});
    const Escritos esperados{Descrito("800", 318, 213),       Descrito("300 + 100", 324, 258),
                             Descrito("300 + 100", 724, 258), Descrito("1", 97, 363),
                             Descrito("2", 597, 363),         Descrito("3", 897, 363)};
    EXPECT_EQ(EscritosEn(Lienzo), esperados);
    EXPECT_TRUE(HayFlecha(Lienzo, {300, 245}, 1, 50));
    EXPECT_TRUE(HayPoligono(Lienzo, {{100, 285}, {600, 285}, {600, 245}, {100, 245}}, {248, 214, 210}));
    EXPECT_TRUE(HayPoligono(Lienzo, {{600, 285}, {900, 285}, {900, 245}, {600, 245}}, Marca));
    Datos.JuntasD.push_back({2, 0, 0.5});  // 4.5 m still fit; the slab's middle height goes to the canvas's
    DibujeLosaCargas(Lienzo, Vista, Datos, {}, {});
    EXPECT_EQ(EscritosEn(Lienzo).count(Descrito("300 + 100", 324, 258)), 1U);
    EXPECT_TRUE(HayPoligono(Lienzo, {{100, 310}, {600, 260}, {600, 220}, {100, 270}}, {248, 214, 210}));
    Datos.JuntasD.back().y = -0.5;
    DibujeLosaDatos(Lienzo, Vista, Datos, {}, {});
    EXPECT_DOUBLE_EQ(Vista.Escala, 600 * 0.55 / 3.7);
    EXPECT_EQ(Vista.OrigenY, 158);  // 180 less a quarter of a metre
    EXPECT_EQ(EscritosEn(Lienzo).count(Descrito("(0,00 ; -0,50)", 548, 162)), 1U);
    Datos.JuntasD.pop_back();
    Datos.Tramos[1].Wp = Datos.Tramos[1].WV = 0;
    DibujeLosaCargas(Lienzo, Vista, Datos, {}, {});
    EXPECT_EQ(Lienzo.DeColor({248, 214, 210}).size(), 1U);
    VaciarLosa(Datos);
    DibujeLosaCargas(Lienzo, Vista, Datos, {}, {});
    EXPECT_TRUE(Lienzo.Textos.empty());
}

TEST(Apoyos, CadaTipoTieneSuSimbolo) {
    LienzoGrabador lienzo(1000, 600);
    const EstadoVista vista{1, 0, 0, 100, 0.01, 500, 300, true, false};
    const Plano plano(lienzo, vista, "Tahoma");
    const Color triangulo{255, 219, 117};
    const auto dibujar = [&](std::int16_t tipo) {
        lienzo.Limpiar();
        DibujeApoyo(plano, -1, 0.5, tipo);  // the joint at (400, 250), its band's foot at 265
    };
    dibujar(ApoyoFijo);
    EXPECT_TRUE(HayPoligono(lienzo, {{400, 265}, {380, 285}, {420, 285}}, triangulo));
    EXPECT_TRUE(HayLinea(lienzo, {{370, 285}, {430, 285}}, EstiloLinea::Solida, 2));
    EXPECT_TRUE(lienzo.Circulos.empty());
    dibujar(RodilloEnX);
    EXPECT_TRUE(HayPoligono(lienzo, {{400, 265}, {380, 285}, {420, 285}}, triangulo));
    ASSERT_EQ(lienzo.Circulos.size(), 2U);
    EXPECT_EQ(lienzo.Circulos[0].Puntos, (Puntos{{390, 290}, {395, 290}}));
    EXPECT_EQ(lienzo.Circulos[1].Puntos, (Puntos{{410, 290}, {415, 290}}));
    EXPECT_EQ(lienzo.Circulos[0].Relleno, (Color{253, 192, 160}));
    dibujar(RodilloEnY);
    EXPECT_TRUE(HayPoligono(lienzo, {{400, 285}, {380, 265}, {380, 305}}, triangulo));
    ASSERT_EQ(lienzo.Circulos.size(), 2U);
    EXPECT_EQ(lienzo.Circulos[0].Puntos, (Puntos{{375, 275}, {380, 275}}));
    EXPECT_EQ(lienzo.Circulos[1].Puntos, (Puntos{{375, 295}, {380, 295}}));
    EXPECT_TRUE(HayLinea(lienzo, {{370, 265}, {370, 305}}, EstiloLinea::Solida));
    dibujar(Empotramiento);
    EXPECT_TRUE(HayPoligono(lienzo, {{390, 225}, {410, 225}, {410, 275}, {390, 275}}, triangulo));
    for (const std::int16_t tipo : {SinApoyo, TipoApoyo{}}) {
        dibujar(tipo);
        EXPECT_TRUE(lienzo.Poligonos.empty());
    }
}

}  // namespace
}  // namespace trabex
