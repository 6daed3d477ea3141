#include "drawing/helice/Giro.h"

#include <cmath>
#include <utility>

namespace trabex::dibujo::helice {

namespace {

constexpr double Paso = 5;  // degrees
constexpr double Vuelta = 360;
constexpr double PixelesPorTecla = 10;

void GirarVertical(Giro& giro, double grados) {
    giro.GiroVertical += grados;
    if (std::fabs(giro.GiroVertical) >= Vuelta) giro.GiroVertical = 0;
}

/// True when the key turned the view.
bool Teclear(Giro& giro, TeclaVista tecla) {
    if (giro.Modo == ModoGiro::Ninguno) return false;
    switch (tecla) {
        case TeclaVista::Arriba:
            GirarVertical(giro, Paso);
            return true;
        case TeclaVista::Abajo:
            GirarVertical(giro, -Paso);
            return true;
        case TeclaVista::Derecha:
            giro.GiroHorizontal += Paso;
            return true;
        case TeclaVista::Izquierda:
            giro.GiroHorizontal -= Paso;
            return true;
        default:
            return false;
    }
}

}  // namespace

bool Avanzar(Giro& giro) {
    if (giro.Modo == ModoGiro::Vertical) GirarVertical(giro, Paso);
    if (giro.Modo == ModoGiro::Horizontal) giro.GiroHorizontal += Paso;
    return giro.Modo != ModoGiro::Ninguno;
}

TeclasDeVista TeclasDeHelice(Giro& giro, std::function<void()> redibuje) {
    return {0, PixelesPorTecla, [&giro, redibuje = std::move(redibuje)](TeclaVista tecla) {
                if (!Teclear(giro, tecla)) return false;
                redibuje();
                return true;
            }};
}

void Enderezar(Giro& giro) {
    giro = {};
}

}  // namespace trabex::dibujo::helice
