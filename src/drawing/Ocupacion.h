#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace trabex::dibujo {

/// A place taken on the canvas, in its units: top left corner and size.
struct PiezaTexto {
    double x = 0;
    double y = 0;
    double Ancho = 0;
    double Alto = 0;

    double Derecha() const { return x + Ancho; }
    double Pie() const { return y + Alto; }
};

/// The places that labels and figures have taken. Kept by cells, so that asking costs the same however many
/// there are; a cell should be about as large as a label.
class Ocupacion {
  public:
    Ocupacion(double anchoDeCelda, double altoDeCelda) : ancho_(anchoDeCelda), alto_(altoDeCelda) {}

    void Reservar(const PiezaTexto& caja);
    /// Area of the box that is taken already; boxes that only touch take none of each other.
    double Solape(const PiezaTexto& caja) const;
    bool Libre(const PiezaTexto& caja) const { return Solape(caja) == 0; }
    /// Takes the first place from a box on, `paso` further down (or up) each, at which it meets none taken.
    PiezaTexto Apilar(PiezaTexto caja, double paso);

  private:
    double ancho_;
    double alto_;
    std::unordered_map<std::int64_t, std::vector<PiezaTexto>> celdas_;
};

}  // namespace trabex::dibujo
