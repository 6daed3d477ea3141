#include "drawing/Plano.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <string>

#include "drawing/Primitivas.h"

namespace trabex::dibujo {

namespace {
constexpr double PuntosMinimosDeTitulo = 8;
constexpr double AnchoDeCelda = 96;  // pixels at zoom 1, as a label
constexpr double AltoDeCelda = 24;
}  // namespace

Plano::Plano(Lienzo& lienzo, const EstadoVista& vista, std::string_view fuente)
    : lienzo_(lienzo), vista_(vista), fuente_(fuente), ocupadas_(SinOcupar()) {}

/// Figures in metres are taken too: a cell is no smaller than they.
Ocupacion Plano::SinOcupar() const {
    const double unidad = lienzo_.LadoDePixel() * std::max(1.0, Aumento());
    return {std::max(AnchoDeCelda * unidad, vista_.Escala / 2),
            std::max(AltoDeCelda * unidad, vista_.Escala / 8)};
}

std::int32_t Plano::X(double x) const {
    return Pixeles(vista_.Escala * x + vista_.OrigenX);
}

std::int32_t Plano::Y(double y) const {
    return Pixeles(vista_.OrigenY - vista_.Escala * y);
}

void Plano::Letra(double base, bool negrita) const {
    lienzo_.PonerFuente({std::string(fuente_), vista_.EscalaBase * base * vista_.Escala, negrita});
}

void Plano::LetraDeTitulo(double base) const {
    const double puntos = vista_.EscalaBase * base * vista_.Escala;
    lienzo_.PonerFuente({std::string(fuente_), std::max(puntos, PuntosMinimosDeTitulo), true});
}

void Plano::Escribir(std::string_view texto, Ancla ancla, std::int32_t x, std::int32_t y) const {
    const std::int32_t ancho = ancla == Ancla::Izquierda ? 0 : lienzo_.Medir(texto).Ancho;
    DibujeTexto(lienzo_, texto, ancla == Ancla::Centro ? x - ancho / 2 : x - ancho, y, 0);
}

void Plano::EscribirCentrado(std::string_view texto, double x, double y, double grados) const {
    const MedidaTexto medida = lienzo_.Medir(texto);
    const double giro = grados * std::numbers::pi / 180;
    const double dx = -medida.Ancho / 2.0;
    const double dy = -medida.Alto / 2.0;
    DibujeTexto(lienzo_, texto, Pixeles(x + dx * std::cos(giro) + dy * std::sin(giro)),
                Pixeles(y - dx * std::sin(giro) + dy * std::cos(giro)), grados);
}

void Plano::Reservar(const PiezaTexto& caja) {
    ocupadas_.Reservar({caja.x - vista_.OrigenX, caja.y - vista_.OrigenY, caja.Ancho, caja.Alto});
}

PiezaTexto Plano::Colocar(double ancho, double alto, const std::vector<Centro>& centros) {
    PiezaTexto mejor;
    double menor = std::numeric_limits<double>::infinity();
    for (const Centro& centro : centros) {
        const PiezaTexto caja{centro.x - ancho / 2, centro.y - alto / 2, ancho, alto};
        const double solape =
            ocupadas_.Solape({caja.x - vista_.OrigenX, caja.y - vista_.OrigenY, ancho, alto});
        if (solape < menor) {
            menor = solape;
            mejor = caja;
        }
        if (solape == 0) break;
    }
    Reservar(mejor);
    return mejor;
}

void Plano::Rotular(std::string_view texto, const std::vector<Centro>& centros, double grados) {
    const MedidaTexto medida = lienzo_.Medir(texto);
    const bool deLado = grados == 90;
    const PiezaTexto caja =
        Colocar(deLado ? medida.Alto : medida.Ancho, deLado ? medida.Ancho : medida.Alto, centros);
    EscribirCentrado(texto, caja.x + caja.Ancho / 2, caja.y + caja.Alto / 2, grados);
}

}  // namespace trabex::dibujo
