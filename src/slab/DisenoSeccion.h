#pragma once

#include <cstddef>

#include "base/RefuerzoFlexion.h"
#include "slab/Losa.h"

namespace trabex::losas {

/// Length of a solid zone as it is shown and reported, m: only what is above 0.3, else 0.
inline double MacizadoVisible(double longitud) {
    return longitud > 0.3 ? longitud : 0;
}

/// Section design of one slab, with what its section and materials fix worked out once.
class DisenoSeccion {
  public:
    DisenoSeccion(const Losa& losa, const DatosGenerales& generales);

    /// Flexural steel for a factored moment M in kgf·m: a positive one pulls the bottom face, a negative or
    /// zero one the top. The section is rectangular everywhere, also for a ribbed slab under positive moment.
    AceroCaras CalcularAcero(double M, const Pasos& pasos = {}) const;

    /// Length of the solid zone that a ribbed slab needs beside a joint, m, under a factored shear V (kgf)
    /// and moment M (kgf·m); C is the span's cosine.
    ///
    /// The longer of the distance at which the concrete alone carries the shear (0.53·1.1·√F'c·b·d·φ) and the
    /// distance at which the moment falls to the section's limit. On both sides of the joint the load is that
    /// of the span to its left, and slot 0 of Tramos makes it zero at the first joint.
    double CalcularMacizado(std::size_t junta, double V, double M, double C, const Pasos& pasos = {}) const;

  private:
    const Losa& losa_;
    const DatosGenerales generales_;
    SeccionFlexion seccion_;
    double Vc_;    ///< shear capacity of a rib, kgf
    double Mlim_;  ///< limit moment of a rib, kgf·cm
};

}  // namespace trabex::losas
