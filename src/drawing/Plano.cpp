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
constexpr double AnchoDeCelda = 96;
constexpr double AltoDeCelda = 24;
// More labels than a cell could show legibly: from here on one more makes it no fuller, and a sheet of
// thousands of spans is drawn in a time that grows with them and not with their square.
constexpr std::size_t CabenEnCelda = 16;

std::int64_t Celda(std::int64_t columna, std::int64_t fila) {
    return columna * (std::int64_t{1} << 32) + fila;
}

/// Runs `accion` on the cells that a box touches, on the canvas and as far again around it: at any zoom they
/// are no more than these.
template <class Accion>
void PorCelda(const Lienzo& lienzo, const PiezaTexto& caja, Accion accion) {
    const auto celda = [](double lugar, double lado, double tamano) {
        const double acotado = lugar > -tamano ? std::min(lugar, 2 * tamano) : -tamano;
        return static_cast<std::int64_t>(std::floor(acotado / lado));
    };
    const double W = lienzo.ScaleWidth();
    const double H = lienzo.ScaleHeight();
    if (!(caja.x < 2 * W && caja.y < 2 * H && caja.x + caja.Ancho > -W && caja.y + caja.Alto > -H)) return;
    const std::int64_t ultimaColumna = celda(caja.x + caja.Ancho, AnchoDeCelda, W);
    const std::int64_t ultimaFila = celda(caja.y + caja.Alto, AltoDeCelda, H);
    for (std::int64_t fila = celda(caja.y, AltoDeCelda, H); fila <= ultimaFila; ++fila) {
        for (std::int64_t columna = celda(caja.x, AnchoDeCelda, W); columna <= ultimaColumna; ++columna)
            accion(columna, fila);
    }
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
    PorCelda(lienzo_, caja, [&](std::int64_t columna, std::int64_t fila) {
        std::vector<PiezaTexto>& suyas = ocupadas_[Celda(columna, fila)];
        if (suyas.size() < CabenEnCelda) suyas.push_back(caja);
    });
}

double Plano::Solape(const PiezaTexto& caja) const {
    double total = 0;
    PorCelda(lienzo_, caja, [&](std::int64_t columna, std::int64_t fila) {
        const auto hallada = ocupadas_.find(Celda(columna, fila));
        if (hallada == ocupadas_.end()) return;
        const double x = static_cast<double>(columna) * AnchoDeCelda;
        const double y = static_cast<double>(fila) * AltoDeCelda;
        const double izquierda = std::max(caja.x, x);
        const double arriba = std::max(caja.y, y);
        const double derecha = std::min(caja.x + caja.Ancho, x + AnchoDeCelda);
        const double abajo = std::min(caja.y + caja.Alto, y + AltoDeCelda);
        for (const PiezaTexto& otra : hallada->second) {
            const double ancho = std::min(derecha, otra.x + otra.Ancho) - std::max(izquierda, otra.x);
            const double alto = std::min(abajo, otra.y + otra.Alto) - std::max(arriba, otra.y);
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
