#pragma once

#include "slab/Losa.h"
#include "slab/ResultadosLosa.h"

namespace trabex::losas {

/// FCP times the permanent value plus FCV times the live one.
inline double Mayorar(const DatosGenerales& generales, double permanente, double variable) {
    return generales.FCV * variable + generales.FCP * permanente;
}

/// A span under factored loads, along the member. Its length comes from LT and the cosine, so that a span
/// lengthened by a shift along X keeps its entered length here.
struct TramoMayorado {
    double w;   ///< uniform load, kgf/m
    double P;   ///< point load, kgf
    double a;   ///< its distance from the span's first joint, m
    double Ls;  ///< length, m
};

/// Factored loads of a span of cosine C.
TramoMayorado MayorarTramo(const Tramo& tramo, const DatosGenerales& generales, double C);

/// Factored moments and shears at both ends of span i of `resultados`.
struct ExtremosMayorados {
    double Mi;  ///< kgf·m, at the first joint
    double Vi;  ///< kgf
    double Mj;  ///< at the second joint
    double Vj;
};
ExtremosMayorados MayorarExtremos(const ResultadosLosa& resultados, const DatosGenerales& generales,
                                  std::size_t i);

/// The largest moment inside a span, at the point of zero shear.
struct MomentoDeTramo {
    double MT;  ///< kgf·m; 0 when the moment never peaks inside
    double x;   ///< m from the first joint, along the member
};

/// Under an interior point load the span is walked in thousandths to the first station of V ≤ 0; otherwise
/// x = Vi/w. A point load right over a joint plays no part.
MomentoDeTramo MomentoMaximo(const Tramo& tramo, const TramoMayorado& mayorado,
                             const ExtremosMayorados& extremos);

/// Points where the moment of a span changes sign, m from the first joint along the member; 0 where there is
/// none.
struct PuntosInflexion {
    double salida1 = 0;  ///< the farther one
    double salida2 = 0;  ///< the nearer one
};

/// V and M: factored shear and moment at the span's first joint; C its cosine. Without an interior point load
/// the parabola is solved with |V|.
PuntosInflexion CalcularInflexion(const Tramo& tramo, const DatosGenerales& generales, double V, double M,
                                  double C);

/// State of a walk along one span. The caller clears HayPuntual before it walks a span; where RepitaEstacion
/// comes back set it evaluates the same station again, and so gets the shear before and after the point load.
struct EstacionPuntual {
    bool HayPuntual = false;
    bool RepitaEstacion = false;
};

/// Factored moment M (kgf·m) and shear V (kgf) at a station `xh` m from the span's first joint along the
/// horizontal; C is the span's cosine, M0 and V0 the values at the first joint.
void EsfuerzosEnSeccion(const Tramo& tramo, const DatosGenerales& generales, double xh, double C, double M0,
                        double V0, EstacionPuntual& estacion, double& M, double& V);

}  // namespace trabex::losas
