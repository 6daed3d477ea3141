#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "base/Formatos.h"
#include "slab/Losa.h"
#include "slab/ResultadosLosa.h"

namespace trabex::dibujo::losa {

/// What the sheets of a slab are made of. Results that are not of this slab's size, or not there, count as
/// zeros.
struct LosaCalculada {
    const losas::Losa& Datos;
    const DatosGenerales& Generales;
    const losas::ResultadosLosa& Resultados;
};

/// What the load band shows: the sum of both loads, or the two apart.
enum OpcionDeCarga : unsigned char { CargaTotal = 0, CargaPorCasos = 1, CargaSinUso = 2 };

/// Position of the axes, m: x to the right with the undisplaced slab centred on 0, y upward. Counts from 1.
struct EjesDeHoja {
    std::vector<double> EjesX;
    std::vector<double> EjesY;
    double YMaximo = 0;
    double YMinimo = 0;
    double Longitud = 0;  ///< sum of the span lengths
};
EjesDeHoja UbicarEjes(const losas::Losa& losa);

/// Slope of span i, radians: 0 where its axes stand one above the other.
double PendienteDeTramo(const EjesDeHoja& ejes, std::size_t i);

/// Depth in the titles: Ho of a ribbed slab, Hm of a solid one.
double EspesorDeLosa(const losas::Losa& losa);
/// "LOSA NERVADA: " or "LOSA MACIZA: ".
std::string RotuloDeLosa(const losas::Losa& losa);

/// Load of a span as the band shows it: "390" or "300 + 90".
std::string TextoDeCarga(const losas::Tramo& tramo, OpcionDeCarga opcion);
/// Shift of a displaced joint: along X, along Y, or both.
std::string TextoDeCorrimiento(const losas::JuntaD& junta, const Separadores& separadores);

/// Factored end values of a span, kgf and kgf·m, and its largest inner moment.
struct ExtremosDeTramo {
    double MA = 0, VA = 0, MB = 0, VB = 0;
    double MT = 0, x = 0;  ///< x from the first axis along the member, m
};
ExtremosDeTramo ExtremosDe(const LosaCalculada& losa, std::size_t i);

/// A point of the diagrams of a span: distance from its first axis along the horizontal, moment and shear.
struct PuntoDiagrama {
    double d = 0;
    double M = 0;
    double V = 0;
};
/// Factored stations of span i: round(4·LT) strips, with the station under a point load twice. Empty when the
/// span is too short for a strip or has no results.
std::vector<PuntoDiagrama> EstacionesDeTramo(const LosaCalculada& losa, std::size_t i, double pendiente);

/// Service reactions on the beam of an axis, kgf per metre: of a ribbed slab, per rib over its spacing.
struct ReaccionPorMetro {
    double CP = 0;
    double CV = 0;
    double Total = 0;
};
ReaccionPorMetro ReaccionEnEje(const LosaCalculada& losa, std::size_t eje);
/// Factored reaction on an axis, kgf per rib or per metre as the slab is analysed.
double ReaccionMayorada(const LosaCalculada& losa, std::size_t eje);

/// Largest factored hogging moment at an axis, of its two spans; 0 when neither hogs.
double MomentoSuperior(const LosaCalculada& losa, std::size_t eje);

/// What is built at an axis and in a span; zeros when the results are not there.
losas::DisenoDeEje DisenoEnEje(const LosaCalculada& losa, std::size_t eje);
losas::DisenoDeTramo DisenoEnTramo(const LosaCalculada& losa, std::size_t tramo);

/// Minimum steel as the caption shows it; applied to nothing.
double AceroMinimo(const losas::Losa& losa, const DatosGenerales& generales);

}  // namespace trabex::dibujo::losa
