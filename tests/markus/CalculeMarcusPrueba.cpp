#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "markus/Avisos.h"
#include "markus/CalculeMarcus.h"
#include "support/Errores.h"

namespace trabex::prueba {

using namespace marcus;
namespace {

std::vector<PanoMarcus> UnoPorCaso(double Carga, double LX, double LY) {
    std::vector<PanoMarcus> panos;
    for (std::int16_t caso = 1; caso <= 9; ++caso) panos.push_back({Carga, caso, LX, LY, {}});
    return panos;
}

/// Two crossing strips deflect alike: each strip's factor tells its ends (5 free to turn at both, 2 fixed at
/// one, 1 fixed at both).
TEST(Marcus, LasFranjasDescansanIgual) {
    constexpr double factores[]{5, 2, 1};  // by how many ends are fixed
    std::mt19937 azar(2);
    std::uniform_real_distribution<> luz(1, 9);
    for (int vez = 0; vez < 100; ++vez) {
        auto panos = UnoPorCaso(1000, luz(azar), luz(azar));
        CalculeMarcus(panos);
        for (std::size_t i = 0; i < panos.size(); ++i) {
            const auto& [CX, CY, WX, WY] = panos[i].Reparto;
            const double flechaX = factores[Bordes[i].EnX] * WX * std::pow(panos[i].LX, 4);
            const double flechaY = factores[Bordes[i].EnY] * WY * std::pow(panos[i].LY, 4);
            EXPECT_NEAR(flechaX / flechaY, 1, 1e-9) << "caso " << i + 1;
            EXPECT_NEAR(WX + WY, 1000, 1e-9);
            EXPECT_EQ(CX + CY, 1);
        }
    }
}

TEST(Marcus, LongitudesNulasYCasosDeFuera) {
    auto sinX = UnoPorCaso(1000, 0, 5);
    CalculeMarcus(sinX);
    auto sinY = UnoPorCaso(1000, 5, 0);
    CalculeMarcus(sinY);
    for (std::size_t i = 0; i < 9; ++i) {
        const bool divideLY = i == 4 || i == 5 || i == 8;
        EXPECT_EQ(sinX[i].Reparto.CX, divideLY ? 1 : 0);
        EXPECT_EQ(sinX[i].Reparto.CY, 0);
        EXPECT_EQ(sinY[i].Reparto.WX + sinY[i].Reparto.WY, 0);
    }
    std::vector<PanoMarcus> panos{
        {100, 10, 4, 4, {}}, {100, 9, 4, 4, {}}, {300, 0, 7, 2, {}}, {60, -3, 0, 0, {}}};
    CalculeMarcus(panos);
    EXPECT_EQ(panos[0].Reparto.CX, 0);
    EXPECT_EQ(panos[0].Reparto.CY, 0);
    EXPECT_NEAR(panos[2].Reparto.WX, 100, 1e-12);  // carried over from the panel above
    EXPECT_NEAR(panos[3].Reparto.WY, 40, 1e-12);
}

/// An empty number is no number, and a ratio may pass their range: the rows before it have theirs, the others
/// keep what they had.
TEST(Marcus, UnFalloDejaLasFilasDeAntes) {
    const double vacio = std::nan("");
    const std::pair<PanoMarcus, int> malos[]{{{vacio, 1, 4, 4, {}}, 13},
                                             {{100, 1, vacio, 4, {}}, 13},
                                             {{100, 1, 4, vacio, {}}, 13},
                                             {{100, 1, 1e-200, 4, {}}, 6},
                                             {{100, 8, 1, 1.1e77, {}}, 6}};  // its double passes it
    for (const auto& [malo, codigo] : malos) {
        std::vector<PanoMarcus> panos(3, {100, 1, 4, 4, {}});
        panos[1] = malo;
        panos[2].Reparto.WX = 7;
        EXPECT_EQ(CodigoDe([&] { CalculeMarcus(panos); }), codigo);
        EXPECT_EQ(panos[0].Reparto.WX, 50);
        EXPECT_EQ(panos[1].Reparto.CX, 0);
        EXPECT_EQ(panos[2].Reparto.WX, 7);
    }
}

TEST(Marcus, Avisos) {
    const std::vector<PanoMarcus> panos{
        {100, 9, 4, 4, {}}, {100, 10, 4, 4, {}}, {100, 5, 0, 4, {}}, {100, 1, 3, -1, {}}};
    const Avisos avisos = AvisosDe(panos);
    ASSERT_EQ(avisos.size(), 3U);
    EXPECT_EQ(EnUnaLinea(avisos[0]),
              "Paño 2: El caso 10 no existe: el paño repite los coeficientes del anterior.");
    EXPECT_EQ(EnUnaLinea(avisos[1]), "Paño 3: Una longitud no es mayor que cero: su reparto no vale.");
    EXPECT_EQ(avisos[2].Lugar, "Paño 4");
}

}  // namespace
}  // namespace trabex::prueba
