#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "drawing/helice/Perspectiva.h"
#include "helical/DatosEscaleraH.h"

namespace trabex::dibujo::helice {

/// Direction in plan of an angle of the flight, degrees from its foot. It is exact at the quarters of a turn.
struct Direccion {
    double Coseno;
    double Seno;
};
Direccion DireccionEn(double grados);

/// Product of the diagonals of a face of four points: upright on it, of twice its area.
Punto3 Normal(const std::array<Punto3, 4>& vertices);

/// What a drawing needs of a flight: nothing is drawn of one for which this does not hold.
bool TieneMedidas(const helices::DatosEscaleraH& escalera);

/// The flight as a figure. Its foot is at 0 degrees, at the right of who looks; it comes towards him as it
/// rises. The inner edge of a flight that is wider than two radii is its axis.
class CuerpoHelice {
  public:
    explicit CuerpoHelice(const helices::DatosEscaleraH& escalera);

    double RadioExterior() const { return exterior_; }
    double RadioInterior() const { return interior_; }
    double RadioDelEje() const { return escalera_.R; }
    /// Development in plan, degrees, one turn at most; and the last whole degree of the edges in space.
    double Angulo() const { return angulo_; }
    int Grados() const { return grados_; }

    /// Angles that break an arc every `paso` degrees or less, its ends among them.
    static std::vector<double> Quiebres(double desde, double hasta, double paso);

    /// A point `sobre` m above the surface between both edges.
    Punto3 En(double radio, double grados, double sobre = 0) const;

    /// Steps of 17.5 cm or so, for the picture alone; none on a flight that does not rise nor on a beam.
    int Peldanos() const { return peldanos_; }
    double GradosDePeldano() const { return static_cast<double>(grados_) / peldanos_; }

    enum class Parte : std::uint8_t { Huella, Contrahuella, Costado, Losa, Fondo };
    struct Cara {
        std::array<Punto3, 4> Vertices;  ///< in the order in which they turn left when seen from outside
        std::array<bool, 4> Aristas;     ///< whether the side from each vertex to the next is an edge
        Parte De;
    };
    /// All that bounds the flight: slab, steps, both ends. Curved parts are broken every `paso` degrees.
    std::vector<Cara> Caras(double paso) const;
    double Espesor() const { return escalera_.T; }
    double Contrahuella() const { return peldanos_ > 0 ? escalera_.H / peldanos_ : 0; }

  private:
    helices::DatosEscaleraH escalera_;
    double exterior_;
    double interior_;
    double angulo_;
    int grados_;
    int peldanos_;
};

}  // namespace trabex::dibujo::helice
