#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "base/DatosGenerales.h"
#include "base/RefuerzoFlexion.h"
#include "slab/Losa.h"
#include "slab/ResultadosLosa.h"

namespace trabex::losas {

/// A slab with what was calculated of it. Its values below are what sheets and reports show: results that are
/// not of this slab's size, or not there, count as zeros.
struct LosaCalculada {
    const Losa& Datos;
    const DatosGenerales& Generales;
    const ResultadosLosa& Resultados;
};

/// Factored end values of a span, kgf and kgf·m, and its largest inner moment.
struct ExtremosDeTramo {
    double MA = 0, VA = 0, MB = 0, VB = 0;
    double MT = 0, x = 0;  ///< x from the first axis along the member, m
};
ExtremosDeTramo ExtremosDe(const LosaCalculada& losa, std::size_t tramo);

/// A point of the diagrams of a span: distance from its first axis along the horizontal, m, factored moment
/// and shear there.
struct PuntoDiagrama {
    double d = 0;
    double M = 0;
    double V = 0;
};
/// Stations of a span that is drawn at a slope of `pendiente` radians: round(4·LT) strips, with the station
/// under a point load twice. Empty when the span is too short for a strip or has no results.
std::vector<PuntoDiagrama> EstacionesDeTramo(const LosaCalculada& losa, std::size_t tramo, double pendiente);

/// Any other point of them, `d` m from the span's first axis along the horizontal; under a point load, after
/// it. Nothing where the span has no results.
std::optional<PuntoDiagrama> PuntoDeTramo(const LosaCalculada& losa, std::size_t tramo, double pendiente,
                                          double d);

/// Theoretical steel of the slab's section for a factored moment, kgf·m: no minimum applies.
AceroCaras AceroPara(const LosaCalculada& losa, double M);

/// What an axis takes, upward and along X.
struct Reaccion {
    double V = 0;
    double H = 0;
};

/// Service reactions of the beam under an axis, kgf per metre of the beam: of a ribbed slab, whose rib is
/// analysed, R/So; of a solid one, analysed by metre, R.
struct ReaccionesPorMetro {
    Reaccion Permanente;
    Reaccion Variable;
    Reaccion Total;
};
ReaccionesPorMetro ReaccionesEnEje(const LosaCalculada& losa, std::size_t eje);

/// Factored vertical reaction on an axis, kgf per rib or per metre as the slab is analysed.
double ReaccionMayorada(const LosaCalculada& losa, std::size_t eje);

/// Factored hogging moment at an axis, kgf·m: that of the span to its right, at the last axis of the span to
/// its left; 0 when it does not hog.
double MomentoSuperior(const LosaCalculada& losa, std::size_t eje);

/// What is built at an axis and in a span.
DisenoDeEje DisenoEnEje(const LosaCalculada& losa, std::size_t eje);
DisenoDeTramo DisenoEnTramo(const LosaCalculada& losa, std::size_t tramo);

/// Minimum steel that is shown and applied to nothing: AceroMinimoDeViga of a rib, in cm², AceroMinimoDeLosa
/// of a solid slab, in cm² for its width Bm. The effective depth is d = h − D8.
double AceroMinimo(const Losa& losa, const DatosGenerales& generales);

}  // namespace trabex::losas
