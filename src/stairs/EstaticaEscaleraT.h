#pragma once

#include "stairs/DatosEscaleraT.h"
#include "stairs/ResultadosEscaleraT.h"

namespace trabex::escaleras {

/// Statics of one self-supporting stair, formula by formula.
///
/// One flight carries WT along its plan length, the half landing Wd (or WpD) over B. In the landing a
/// horizontal couple holds the flights together, at a lever B/2 from a flight's axis: it gives the flight
/// axial force, lateral moment and torsion besides its bending. The redundants are fixed formulas in B/(2L)
/// and the slope, for a landing that turns as a half circle.
class CalculoEstaticoT {
  public:
    explicit CalculoEstaticoT(const DatosEscaleraT& escalera);

    const EstaticaEscaleraT& Estatica() const { return estatica_; }

    /// Forces of the flight at X m in plan from the landing, with the envelope of its moments.
    EscaleraTramoPunto EsfuerzosTramo(double X) const;

    /// Forces of the half landing at the angle θ, radians.
    EscaleraDescansoPunto EsfuerzosDescanso(double teta) const;

  private:
    void FormarCoeficientes(double k);
    void FormarMomentos();
    double P() const;
    double Q(double W) const;
    double Momento(double X, double W, double momentoApoyo) const;
    double Corte(double X, double W, double momentoApoyo) const;

    double L_, B_, WT_, Wd_, WpD_;
    double Hh_;  ///< rise of one flight, m
    double Bh_;  ///< half the width, m
    double seno_ = 0, coseno_ = 0, tangente_ = 0;
    EstaticaEscaleraT estatica_;
};

}  // namespace trabex::escaleras
