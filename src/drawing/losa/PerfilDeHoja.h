#pragma once

#include <vector>

#include "drawing/losa/EjesDeHoja.h"

namespace trabex::dibujo::losa {

/// The line through a sheet's axes on its canvas: canvas units from the world's origin, x to the right, y
/// downward. Bands under a slab run along it.
class PerfilDeHoja {
  public:
    PerfilDeHoja(const EjesDeHoja& ejes, const GrupoDeTramos& tramos, double escala);

    /// Level at a place; beyond the slab that of its end.
    double Nivel(double x) const { return Entre(x, x).MasBajo; }

    struct Niveles {
        double MasAlto;  ///< the lesser y
        double MasBajo;
    };
    /// The extremes over a width. Where shifts have put the axes out of their order, those of the whole slab.
    Niveles Entre(double x1, double x2) const;
    Niveles Todos() const { return todos_; }

  private:
    double En(std::size_t k, double x) const;

    std::vector<double> x_;
    std::vector<double> y_;
    Niveles todos_;
    bool ordenado_;
};

}  // namespace trabex::dibujo::losa
