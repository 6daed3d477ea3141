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
constexpr double AnchoDeColumna = 96;
// More labels than a column of the canvas could show legibly: from here on one more makes it no fuller, and a
// sheet of thousands of spans is drawn in a time that grows with them and not with their square.
constexpr std::size_t CabenEnColumna = 512;

/// Runs `accion` on the number of each column of the canvas that a box touches.
template <class Accion>
void PorColumna(const PiezaTexto& caja, Accion accion) {
    const auto primera = static_cast<std::int64_t>(std::floor(caja.x / AnchoDeColumna));
    const auto ultima = static_cast<std::int64_t>(std::floor((caja.x + caja.Ancho) / AnchoDeColumna));
    for (std::int64_t columna = primera; columna <= ultima; ++columna) accion(columna);
}
}  // namespace

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
    PorColumna(caja, [&](std::int64_t columna) {
        std::vector<PiezaTexto>& suyas = ocupadas_[columna];
        if (suyas.size() < CabenEnColumna) suyas.push_back(caja);
    });
}

double Plano::Solape(const PiezaTexto& caja) const {
    double total = 0;
    PorColumna(caja, [&](std::int64_t columna) {
        const auto hallada = ocupadas_.find(columna);
        if (hallada == ocupadas_.end()) return;
        for (const PiezaTexto& otra : hallada->second) {
            const double ancho =
                std::min(caja.x + caja.Ancho, otra.x + otra.Ancho) - std::max(caja.x, otra.x);
            const double alto = std::min(caja.y + caja.Alto, otra.y + otra.Alto) - std::max(caja.y, otra.y);
            if (ancho > 0 && alto > 0) total += ancho * alto;
        }
    });
    return total;
}

PiezaTexto Plano::Colocar(double ancho, double alto, const std::vector<Centro>& centros) {
    PiezaTexto mejor;
    double menor = std::numeric_limits<double>::infinity();
    for (const Centro& centro : centros) {
        const PiezaTexto caja{centro.x - ancho / 2, centro.y - alto / 2, ancho, alto};
        const double solape = Solape(caja);
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
