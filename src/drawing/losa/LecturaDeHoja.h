#pragma once

#include <optional>
#include <string>

#include "drawing/LectorDeVista.h"
#include "drawing/losa/HojaLosa.h"
#include "slab/ValoresLosa.h"

namespace trabex::dibujo::losa {

// What the diagrams of the forces sheet, as it was last drawn, say at a station.

/// A station of a span on show.
struct EstacionDeHoja {
    std::size_t Tramo = 0;
    losas::PuntoDiagrama Punto;
};

/// The station under a point of the canvas; nothing outside the bands of the diagrams.
std::optional<EstacionDeHoja> EstacionEn(const HojaLosa& hoja, const losas::LosaCalculada& losa,
                                         PuntoLienzo lugar);

/// The station of the diagrams that is the next one to the right of another, or to its left; under a point
/// load there are two. Without another, the first one on show or the last. At the end of the last span,
/// itself.
std::optional<EstacionDeHoja> EstacionVecina(const HojaLosa& hoja, const losas::LosaCalculada& losa,
                                             const std::optional<EstacionDeHoja>& otra, bool aLaDerecha);

/// The same place with the values of today; nothing when the slab has it no more.
std::optional<EstacionDeHoja> Releida(const HojaLosa& hoja, const losas::LosaCalculada& losa,
                                      const EstacionDeHoja& estacion);

/// Its line through both bands; nothing on another sheet.
std::optional<LineaDeMira> MiraDe(const HojaLosa& hoja, const EstacionDeHoja& estacion);

/// "Tramo A-B   x = 2,10 m   Mu = -891 kgf-m   Vu = 909 kgf   As Sup = 1,03 cm2   As Inf = 0,00 cm2": per rib
/// or per metre, as the slab is analysed.
std::string TextoDeLectura(const HojaLosa& hoja, const losas::LosaCalculada& losa,
                           const EstacionDeHoja& estacion);

}  // namespace trabex::dibujo::losa
