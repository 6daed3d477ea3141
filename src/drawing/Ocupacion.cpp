#include "drawing/Ocupacion.h"

#include <algorithm>
#include <cmath>

namespace trabex::dibujo {

namespace {

constexpr double Roce = 1e-6;  // what places may differ by that were summed up in another order
// More labels than a cell can show legibly: from here on one more makes it no fuller.
constexpr std::size_t CabenEnCelda = 64;

std::int64_t Clave(std::int64_t columna, std::int64_t fila) {
    return columna * (std::int64_t{1} << 32) + fila;
}

/// Runs `accion` on the cells that a box touches: of one beyond all measure, on those about its corner.
template <class Accion>
void PorCelda(const PiezaTexto& caja, double ancho, double alto, Accion accion) {
    constexpr double lejos = 1e9;
    constexpr std::int64_t muchas = 64;
    const auto celda = [](double lugar) {
        return static_cast<std::int64_t>(std::floor(lugar > -lejos ? std::fmin(lugar, lejos) : -lejos));
    };
    const std::int64_t columna1 = celda(caja.x / ancho);
    const std::int64_t fila1 = celda(caja.y / alto);
    const std::int64_t columna2 = std::min(celda(caja.Derecha() / ancho), columna1 + muchas);
    const std::int64_t fila2 = std::min(celda(caja.Pie() / alto), fila1 + muchas);
    for (std::int64_t fila = fila1; fila <= fila2; ++fila) {
        for (std::int64_t columna = columna1; columna <= columna2; ++columna) accion(columna, fila);
    }
}

}  // namespace

void Ocupacion::Reservar(const PiezaTexto& caja) {
    PorCelda(caja, ancho_, alto_, [&](std::int64_t columna, std::int64_t fila) {
        std::vector<PiezaTexto>& suyas = celdas_[Clave(columna, fila)];
        if (suyas.size() < CabenEnCelda) suyas.push_back(caja);
    });
}

double Ocupacion::Solape(const PiezaTexto& caja) const {
    double total = 0;
    PorCelda(caja, ancho_, alto_, [&](std::int64_t columna, std::int64_t fila) {
        const auto hallada = celdas_.find(Clave(columna, fila));
        if (hallada == celdas_.end()) return;
        const double izquierda = std::max(caja.x, static_cast<double>(columna) * ancho_);
        const double arriba = std::max(caja.y, static_cast<double>(fila) * alto_);
        const double derecha = std::min(caja.Derecha(), static_cast<double>(columna + 1) * ancho_);
        const double abajo = std::min(caja.Pie(), static_cast<double>(fila + 1) * alto_);
        for (const PiezaTexto& otra : hallada->second) {
            const double ancho = std::min(derecha, otra.Derecha()) - std::max(izquierda, otra.x);
            const double alto = std::min(abajo, otra.Pie()) - std::max(arriba, otra.y);
            if (ancho > Roce && alto > Roce) total += ancho * alto;
        }
    });
    return total;
}

PiezaTexto Ocupacion::Apilar(PiezaTexto caja, double paso) {
    while (!Libre(caja)) caja.y += paso;
    Reservar(caja);
    return caja;
}

}  // namespace trabex::dibujo
