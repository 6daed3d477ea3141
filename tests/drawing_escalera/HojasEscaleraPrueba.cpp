#include <cmath>

#include <gtest/gtest.h>

#include "drawing/Primitivas.h"
#include "drawing/Reparto.h"
#include "drawing/escalera/GraficoEscalera.h"
#include "stairs/CalcularEscaleraT.h"
#include "support/LienzoGrabador.h"

namespace trabex {

using namespace dibujo;
using namespace dibujo::escalera;
using namespace escaleras;
namespace {

using prueba::Caja;
using prueba::LienzoGrabador;
using TextoGrabado = LienzoGrabador::TextoGrabado;

struct Dibujada {
    explicit Dibujada(DatosEscaleraT datos) : Datos(std::move(datos)) {
        CalcularEscaleraT(Datos, Generales, Resultados);
        Hoja.Vista.CuadriculaVisible = false;
    }
    EscaleraCalculada Ver() const { return {Datos, Generales, Resultados}; }
    void Dibujar(LienzoGrabador& lienzo, std::uint8_t vista, const EstiloEscalera& estilo = HojaEnPantalla) {
        Hoja.VistaActual = vista;
        RedibujeVista(lienzo, Hoja, Ver(), estilo);
    }

    DatosEscaleraT Datos;
    DatosGenerales Generales;
    ResultadosEscaleraT Resultados;
    HojaEscalera Hoja;
};

DatosEscaleraT Modelo() {
    return {"E-1", "Escalera principal", 2.4, 1.2, 3, 0.15, 0.15, 1200, 1000, 600};
}

/// Descents of letters may touch the line below: boxes may share this part of a line.
constexpr double Roce = 0.1;

std::string Faltas(const LienzoGrabador& lienzo) {
    std::string faltas;
    for (std::size_t i = 0; i < lienzo.Textos.size(); ++i) {
        const TextoGrabado& texto = lienzo.Textos[i];
        const Caja a = texto.SuCaja();
        if (a.x1 < -0.01 || a.y1 < -0.01 || a.x2 > lienzo.ScaleWidth() + 0.01 ||
            a.y2 > lienzo.ScaleHeight() + 0.01)
            faltas += "off: " + texto.Texto + "\n";
        for (std::size_t k = 0; k < i; ++k)
            if (a.Pisa(lienzo.Textos[k].SuCaja(), Roce * texto.Medida.Alto))
                faltas += "met: " + texto.Texto + " and " + lienzo.Textos[k].Texto + "\n";
    }
    for (const auto& flecha : lienzo.DeColor({248, 199, 199}))
        for (const PuntoLienzo punto : flecha.Puntos)
            if (punto.x < 0 || punto.x > lienzo.ScaleWidth()) faltas += "an arrow leaves the canvas\n";
    return faltas;
}

TEST(HojasEscalera, NingunTextoPisaOtroNiSale) {
    struct Superficie {
        const char* Nombre;
        std::int32_t Ancho, Alto, PorPulgada;
        bool DePapel;
    };
    for (const Superficie& s : {Superficie{"screen", 1120, 632, 96, false},
                                {"small", 555, 464, 96, false},
                                {"report", 940, 580, 96, false},
                                {"report letter", 931, 581, 96, false},
                                {"report letter upright", 691, 821, 96, false},
                                {"report A4", 997, 559, 96, false},
                                {"report A4 upright", 668, 888, 96, false},
                                {"letter upright", 4533, 6033, 600, true},
                                {"A4 upright", 4394, 6449, 600, true},
                                {"letter", 6033, 4533, 600, true},
                                {"A4", 6449, 4394, 600, true}})
        for (const double L : {1.8, 2.4, 3.2, 4.0})
            for (const double B : {0.9, 1.2, 1.5, 2.0})
                for (const double H : {2.4, 3.0, 4.0}) {
                    Dibujada e(
                        {"E-1", "Escalera principal del edificio", L, B, H, 0.2, 0.2, 2076, 1865, 1040});
                    ASSERT_FALSE(e.Resultados.Error);
                    for (std::uint8_t vista = 0; vista < 4; ++vista) {
                        LienzoGrabador lienzo(s.Ancho, s.Alto, s.PorPulgada);
                        e.Hoja = {};
                        e.Hoja.VistaActual = vista;
                        if (s.DePapel)
                            GuardeGraficos1(lienzo, e.Hoja, e.Ver(), {"U", "P", "C"});
                        else
                            e.Dibujar(lienzo, vista);
                        EXPECT_EQ(lienzo.Hallar("PROYECTO: P") != nullptr, s.DePapel);
                        EXPECT_EQ(Faltas(lienzo), "")
                            << s.Nombre << ", sheet " << int(vista) << ", " << L << " " << B << " " << H;
                        EXPECT_GT(lienzo.Textos.size(), 4U);
                    }
                }
}

struct Origen {
    std::uint8_t Vista;
    const EstiloEscalera& Estilo;
    std::int32_t Ancho, Alto;
    double Escala;
    std::int32_t OrigenY;
};

// Plan length 3.6 m, two widths 2.4 m, rise 3 m: each rule's smaller limit, and the row of the origin.
TEST(HojasEscalera, EscalaYOrigenDeCadaHoja) {
    const Origen casos[]{
        {0, HojaEnPantalla, 1000, 600, 600 * 0.8 / 6.7, 293},  // 300 − 0.1·71.64
        {0, HojaEnPantalla, 300, 600, 300 * 0.8 / 3.6, 293},   // 300 − 0.1·66.67
        {1, HojaEnPantalla, 1000, 600, 600 * 0.7 / 4.8, 44},   // 0.5·87.5, half to even
        {2, HojaEnPantalla, 360, 600, 360 * 0.7 / 3.6, 35},
        {3, HojaEnPantalla, 1000, 600, 600 / 5.4, 100},        // 300 − 1.8·111.1
        {0, HojaEnPapel, 4500, 6000, 6000 * 0.7 / 5.9, 2929},  // 3000 − 0.1·711.9
        {1, HojaEnPapel, 4500, 6000, 500, 490},                // 0.5·500 under the page's furniture
        {1, HojaEnPapel, 6000, 4500, 600, 480},                // 666.7 is capped
        {1, HojaEnPapel, 6000, 6000, 6000 * 0.4 / 3.6, 573},   // a page that is not across has no cap
        {3, HojaEnPapel, 6000, 4500, 4500 * 0.8 / 5.4, 1050},  // 2250 − 1.8·666.7
    };
    for (const Origen& c : casos) {
        Dibujada e(Modelo());
        LienzoGrabador lienzo(c.Ancho, c.Alto);
        e.Dibujar(lienzo, c.Vista, c.Estilo);
        EXPECT_DOUBLE_EQ(e.Hoja.Vista.Escala, c.Escala);
        EXPECT_EQ(e.Hoja.Vista.OrigenX, c.Ancho / 2);
        EXPECT_EQ(e.Hoja.Vista.OrigenY, c.OrigenY);
    }
}

using Puntos = std::vector<PuntoLienzo>;

std::vector<Puntos> PuntosDe(const std::vector<LienzoGrabador::Figura>& figuras) {
    std::vector<Puntos> puntos;
    puntos.reserve(figuras.size());
    for (const auto& figura : figuras) puntos.push_back(figura.Puntos);
    return puntos;
}

TEST(HojasEscalera, PlantaYSeccion) {
    Dibujada e(Modelo());
    LienzoGrabador lienzo(1800, 670);  // 80 units to the metre, the origin at 900, 327
    e.Dibujar(lienzo, VistaGeometria);
    ASSERT_DOUBLE_EQ(e.Hoja.Vista.Escala, 80);
    std::vector<Puntos> figuras{{{948, 303}, {1044, 303}, {1044, 87}, {948, 87}},
                                {{756, 303}, {948, 303}, {948, 207}, {756, 207}},
                                {{756, 183}, {948, 183}, {948, 87}, {756, 87}}};
    // Flights: 0.15 m square to a slope of 1.5 in 2.4 (sine 0.53, cosine 0.848), with steps of 24 by 15.
    figuras.push_back({{756, 351}, {948, 471}, {942, 481}, {750, 361}});
    for (int i = 0, x = 756, y = 351; i < 8; ++i, x += 24, y += 15)
        figuras.push_back({{x, y}, {x + 24, y}, {x + 24, y + 15}});
    figuras.push_back({{948, 471}, {756, 591}, {762, 601}, {954, 481}});
    for (int i = 0, x = 948, y = 471; i < 8; ++i, x -= 24, y += 15)
        figuras.push_back({{x, y}, {x - 24, y}, {x - 24, y + 15}});
    figuras.push_back({{948, 471}, {1044, 471}, {1044, 483}, {948, 483}});
    EXPECT_EQ(PuntosDe(lienzo.Poligonos), figuras);
    EXPECT_EQ(lienzo.DeColor({181, 196, 200}).size(), figuras.size() - 3);
    // Treads across both flights; the last one, where the landing begins, one flight alone, a unit longer.
    std::vector<Puntos> lineas;
    for (int x = 780; x < 948; x += 24) {
        lineas.push_back({{x, 303}, {x, 207}});
        lineas.push_back({{x, 183}, {x, 87}});
    }
    lineas.push_back({{948, 304}, {948, 207}});
    const std::vector<std::pair<Puntos, const char*>> cotas{
        {{{756, 79}, {948, 79}}, "2,40"},   {{{948, 79}, {1044, 79}}, "1,20"},
        {{{748, 87}, {748, 183}}, "1,20"},  {{{748, 183}, {748, 207}}, "0,30"},
        {{{748, 207}, {748, 303}}, "1,20"}, {{{1052, 87}, {1052, 303}}, "2,70"},
        {{{736, 351}, {736, 471}}, "1,50"}, {{{736, 471}, {736, 591}}, "1,50"},
    };
    for (std::size_t i = 0; i < cotas.size(); ++i) {
        lineas.push_back(cotas[i].first);
        EXPECT_EQ(lienzo.Textos[i].Texto, cotas[i].second);
    }
    EXPECT_EQ(PuntosDe(lienzo.Lineas), lineas);
    const auto lugar = [&](const char* texto) {
        const Caja caja = lienzo.Hallar(texto)->SuCaja();
        return PuntoLienzo{Pixeles(caja.x1), Pixeles((caja.y1 + caja.y2) / 2)};
    };
    EXPECT_EQ(lugar("e1 = 0,15"), (PuntoLienzo{756, 471}));
    EXPECT_EQ(lugar("e2 = 0,15"), (PuntoLienzo{1052, 477}));
    EXPECT_NEAR(lienzo.Hallar("Escalera principal")->CentroX(), 900, 1);
}

TEST(HojasEscalera, CadaCifraEnSuColumnaYSuFila) {
    Dibujada e(Modelo());
    e.Resultados.DescansoT[7].FallaCorte = TextoFallaCorte;
    LienzoGrabador lienzo(2400, 1200);  // 175 units to the metre, the origin at 1200, 88
    e.Dibujar(lienzo, VistaSolicitaciones);
    ASSERT_DOUBLE_EQ(e.Hoja.Vista.Escala, 175);
    const auto caja = [&](const char* texto) { return lienzo.Hallar(texto)->SuCaja(); };
    for (const auto& [texto, metros] : {std::pair{"-782", -1.8},  // the support
                                        {"-436", -1.56},          // a tenth of the flight further
                                        {"-1174", 1.2},           // 45 degrees, the middle of the landing
                                        {"-941", 1.8}})           // 0 degrees, its far edge
        EXPECT_NEAR((caja(texto).x1 + caja(texto).x2) / 2, 1200 + metros * 175, 1) << texto;
    const double base = 88 + (1.5 + 0.4 + 0.374) * 175;
    EXPECT_NEAR(caja("-782").y2, base - 0.04 * 175, 1);
    EXPECT_NEAR(caja("257").y1, base + 0.05 * 175, 1);
    const TextoGrabado& rotulo = *lienzo.Hallar("ENVOL. MOMENTOS (kgf-m) MX:");
    EXPECT_NEAR(rotulo.Lugar.x + rotulo.Medida.Ancho, 1200 - 1.96 * 175, 1);
    EXPECT_NEAR(rotulo.Lugar.y + rotulo.Medida.Alto / 2.0, base, 1);
    EXPECT_EQ(rotulo.Decimas, 0);
    EXPECT_DOUBLE_EQ(rotulo.Letra.Puntos, 8);
    // Its rule goes from the label to the last column, and one line parts the flight from the landing.
    EXPECT_EQ(lienzo.Lineas[0].Puntos, (std::vector<PuntoLienzo>{{857, 486}, {1522, 486}}));
    EXPECT_EQ(lienzo.Lineas.back().Puntos[0].x, 1305);
    // Where no letters make room, they stop at the smallest.
    DatosEscaleraT datos = Modelo();
    datos.H = 12;
    LienzoGrabador bajo(555, 464);
    Dibujada(datos).Dibujar(bajo, VistaSolicitaciones);
    EXPECT_EQ(bajo.Textos[0].Letra.Puntos, 6);
    // What fails in shear is red, in its row alone. Its column moved half a line from the flight's last.
    for (const TextoGrabado& t : lienzo.Textos)
        EXPECT_EQ(t.Tinta == (Color{255, 0, 0}),
                  t.Texto == "0" && std::fabs(t.SuCaja().x1 + t.Medida.Alto / 2.0 - (1207 + 0.6 * 175)) < 2 &&
                      t.Lugar.y > 88 + (1.9 + 2.828) * 175)
            << t.Texto << " " << t.Lugar.x << " " << t.Lugar.y;
}

TEST(HojasEscalera, ElAceroMinimoSigueAlZoomEnPantallaYEsCiertoEnPapel) {
    Dibujada e(Modelo());
    LienzoGrabador pantalla(2400, 1200);
    e.Dibujar(pantalla, VistaDiseno);
    // 175·1.067 units to the metre instead of 100: 5 cm² and 3 cm² times their square.
    EXPECT_TRUE(pantalla.Hallar("EN EL TRAMO ASMín = 17,43 cm2 (14/Fy)"));
    EXPECT_TRUE(pantalla.Hallar("EN EL DESCANSO ASMín = 10,46 cm2 (0.002)"));
    LienzoGrabador papel(2400, 1200);
    e.Dibujar(papel, VistaDiseno, HojaEnPapel);
    EXPECT_TRUE(papel.Hallar("EN EL TRAMO ASMín = 5,00 cm2 (14/Fy)"));
    EXPECT_TRUE(papel.Hallar("EN EL DESCANSO ASMín = 3,00 cm2 (0.002)"));
}

TEST(HojasEscalera, ReaccionesEnLosDosApoyos) {
    Dibujada e(Modelo());
    LienzoGrabador lienzo(1000, 540);  // 100 units to the metre, the origin at 500, 90
    e.Dibujar(lienzo, VistaReacciones);
    EXPECT_EQ(PuntosDe(lienzo.Poligonos)[0], (Puntos{{320, 140}, {560, 290}, {552, 303}, {312, 153}}));
    std::vector<Puntos> bloques;
    for (const int y : {140, 440}) {
        bloques.push_back({{305, y + 50}, {305, y}});
        bloques.push_back({{305, y}, {335, y}});
        bloques.push_back({{335, y}, {335, y + 50}});
    }
    EXPECT_EQ(PuntosDe(lienzo.Lineas), bloques);
    Puntos puntas;
    for (const auto& flecha : lienzo.DeColor({248, 199, 199})) puntas.push_back(flecha.Puntos[0]);
    EXPECT_EQ(puntas, (Puntos{{305, 140}, {303, 165}, {305, 440}, {268, 465}}));
    // Values: turned at the arrow's left, level below the other one; the title clear of the highest.
    ASSERT_EQ(lienzo.Textos.size(), 5U);
    for (const std::size_t i : {0U, 2U}) {
        const int y = i == 0 ? 140 : 440;
        const Caja vertical = lienzo.Textos[i].SuCaja();
        EXPECT_EQ(lienzo.Textos[i].Texto, "4.080");
        EXPECT_EQ(lienzo.Textos[i].Decimas, 900);
        EXPECT_NEAR(vertical.x2, 305 - 10.1 - 2, 1);
        EXPECT_NEAR((vertical.y1 + vertical.y2) / 2, y - std::max(35.4, vertical.y2 - vertical.y1) / 2, 1);
        const Caja horizontal = lienzo.Textos[i + 1].SuCaja();
        EXPECT_EQ(lienzo.Textos[i + 1].Texto, "5.530");
        EXPECT_EQ(horizontal.x2, 303);
        EXPECT_EQ(horizontal.y1, y + 25 + 10 + 1);
    }
    EXPECT_EQ(lienzo.Textos[4].Texto, "Escalera principal");
    EXPECT_EQ(lienzo.Textos[4].Letra.Puntos, 9);
    EXPECT_NEAR(lienzo.Textos[4].SuCaja().y2, std::min(lienzo.Textos[0].SuCaja().y1, 140 - 35.0) - 4, 1);
}

TEST(HojasEscalera, SinMedidasOSinPeldanosQuedaLoDibujado) {
    struct Caso {
        double L, H;
        std::size_t Figuras;  ///< of the plan
    };
    for (std::uint8_t vista = 0; vista < 4; ++vista)
        for (const auto& [L, H, figuras] : {Caso{2.4, 0, 0}, {0.15, 3.0, 3}, {2.4, 0.18, 3}}) {
            DatosEscaleraT datos = Modelo();
            datos.L = L;
            datos.H = H;
            LienzoGrabador lienzo(1000, 600);
            Dibujada(datos).Dibujar(lienzo, vista);
            EXPECT_EQ(lienzo.Limpiezas, 1);
            EXPECT_EQ(lienzo.Poligonos.size(), vista == VistaGeometria ? figuras : 0U);
            EXPECT_TRUE(lienzo.Textos.empty());
        }
    LienzoGrabador lienzo(1000, 600);
    Dibujada(Modelo()).Dibujar(lienzo, 4);
    EXPECT_EQ(lienzo.Limpiezas, 0);
}

TEST(Reparto, SoloSeMuevenLosQueSeTocan) {
    EXPECT_EQ(Repartir({0, 20, 40}, 10), (std::vector<double>{0, 20, 40}));
    EXPECT_EQ(Repartir({0, 20, 20, 40}, 10), (std::vector<double>{0, 15, 25, 40}));
    EXPECT_EQ(Repartir({0, 12, 12, 40}, 10), (std::vector<double>{-2, 8, 18, 40}));
    EXPECT_EQ(Repartir({}, 10), std::vector<double>{});
}

}  // namespace
}  // namespace trabex
