// Markus coefficients: strips whose deflections at the centre are equal.

#include <array>
#include <cmath>

#include "Verificacion.h"
#include "markus/CalculeMarcus.h"

namespace trabex::verificacion {

using namespace marcus;

namespace {

constexpr const char* Nombre = "Coeficientes de Markus";

/// Deflection at the centre of a strip, in w·L⁴/(384·EI), found by integrating its moments: the free beam's,
/// less those of the fixed ends.
double FlechaDeFranja(int empotrados) {
    const double MA = empotrados == 2 ? 1.0 / 12 : empotrados == 1 ? 1.0 / 8 : 0;
    const double MB = empotrados == 2 ? 1.0 / 12 : 0;
    constexpr int trozos = 2000;
    double flecha = 0;  // unit load at the centre, Simpson
    for (int i = 0; i <= trozos; ++i) {
        const double x = static_cast<double>(i) / trozos;
        const double M = x * (1 - x) / 2 - MA * (1 - x) - MB * x;
        const double m = x < 0.5 ? x / 2 : (1 - x) / 2;
        flecha += M * m * (i == 0 || i == trozos ? 1 : i % 2 == 1 ? 4 : 2) / (3.0 * trozos);
    }
    return 384 * flecha;
}

}  // namespace

void VerificarMarcus(Problemas& problemas) {
    struct Grupo {
        std::int16_t Caso;
        int EnX, EnY;  ///< fixed ends of the strip along each direction
        const char* Que;
    };
    constexpr std::array<Grupo, 9> grupos{{
        {1, 0, 0, "Caso 1: cuatro bordes apoyados"},
        {2, 1, 1, "Caso 2: un borde empotrado en cada dirección"},
        {3, 2, 2, "Caso 3: cuatro bordes empotrados"},
        {4, 0, 1, "Caso 4: un borde empotrado en dirección Y"},
        {5, 1, 0, "Caso 5: un borde empotrado en dirección X"},
        {6, 2, 0, "Caso 6: dos bordes empotrados en dirección X"},
        {7, 0, 2, "Caso 7: dos bordes empotrados en dirección Y"},
        {8, 2, 1, "Caso 8: dos bordes empotrados en dirección X y uno en Y"},
        {9, 1, 2, "Caso 9: uno en dirección X y dos en Y"},
    }};
    for (const Grupo& grupo : grupos) {
        Problema& problema = problemas.emplace_back(
            Nombre, grupo.Que, "Flechas iguales en el cruce de dos franjas, integradas de sus momentos",
            1e-9);
        const double cx = FlechaDeFranja(grupo.EnX), cy = FlechaDeFranja(grupo.EnY);
        double razon = 0.2;
        for (int i = 0; i < 21; ++i, razon *= 1.17) {
            std::array<PanoMarcus, 1> pano{{{1000, grupo.Caso, 4, 4 * razon, {}}}};
            CalculeMarcus(pano);
            const double x4 = cx, y4 = cy * std::pow(razon, 4);
            problema.NuevoCaso();
            problema.Comparar(pano[0].Reparto.CX, y4 / (x4 + y4), 1);
            problema.Comparar(pano[0].Reparto.WX + pano[0].Reparto.WY, 1000, 1000);
        }
    }
    Problema& tabla =
        problemas.emplace_back(Nombre, "Losa cuadrada, los casos 1, 4, 6 y 8: fracciones 1/2, 2/7, 5/6 y 2/3",
                               "Tablas de Marcus publicadas, con cuatro cifras", 1e-4);
    const std::array<std::pair<std::int16_t, double>, 4> publicados{
        {{1, 0.5}, {4, 0.2857}, {6, 0.8333}, {8, 0.6667}}};
    for (const auto& [caso, CX] : publicados) {
        std::array<PanoMarcus, 1> pano{{{1000, caso, 5, 5, {}}}};
        CalculeMarcus(pano);
        tabla.NuevoCaso();
        tabla.Comparar(pano[0].Reparto.CX, CX, 1);
    }
}

}  // namespace trabex::verificacion
