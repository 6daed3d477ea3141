#include "drawing/losa/PerfilDeHoja.h"

#include <algorithm>

namespace trabex::dibujo::losa {

PerfilDeHoja::PerfilDeHoja(const EjesDeHoja& ejes, const GrupoDeTramos& tramos, double escala)
    : todos_{-escala * ejes.YMaximo, -escala * ejes.YMinimo} {
    x_.reserve(tramos.Ultimo - tramos.Primero + 2);
    y_.reserve(x_.capacity());
    for (std::size_t eje = tramos.Primero; eje <= tramos.Ultimo + 1; ++eje) {
        x_.push_back(escala * ejes.EjesX[eje]);
        y_.push_back(-escala * ejes.EjesY[eje]);
    }
    ordenado_ = std::is_sorted(x_.begin(), x_.end());
}

/// On the piece that ends at the point `k`.
double PerfilDeHoja::En(std::size_t k, double x) const {
    const double ancho = x_[k] - x_[k - 1];
    return ancho > 0 ? y_[k - 1] + (y_[k] - y_[k - 1]) * (x - x_[k - 1]) / ancho : y_[k];
}

PerfilDeHoja::Niveles PerfilDeHoja::Entre(double x1, double x2) const {
    if (todos_.MasAlto == todos_.MasBajo || !ordenado_) return todos_;
    const auto pieza = [&](double x) {
        const auto fin = std::lower_bound(x_.begin() + 1, x_.end() - 1, x);
        return static_cast<std::size_t>(fin - x_.begin());
    };
    const double a = std::clamp(x1, x_.front(), x_.back());
    const double b = std::clamp(x2, x_.front(), x_.back());
    const std::size_t desde = pieza(a);
    const std::size_t hasta = pieza(b);
    const double inicio = En(desde, a);
    const double fin = En(hasta, b);
    Niveles niveles{std::min(inicio, fin), std::max(inicio, fin)};
    for (std::size_t k = desde; k < hasta; ++k) {
        niveles.MasAlto = std::min(niveles.MasAlto, y_[k]);
        niveles.MasBajo = std::max(niveles.MasBajo, y_[k]);
    }
    return niveles;
}

}  // namespace trabex::dibujo::losa
