#pragma once

#include "helical/EscaleraHCalculada.h"
#include "reports/cuadricula/Cuadricula.h"

namespace trabex::helices::salida {

// The two panels of a helical stair as rows of data: windows show them and reports are staged from them. They
// stand here, below both. Cells of stations are numbers, which show by their column's format; a row with
// `Rotulo` is a line between stations, its text in its only cell, and with `Destacada` a heading. A stair
// that was not calculated, or not to its end, has columns and no rows.

/// Forces at the stations of both halves, and the reactions. Columns: degrees from the centre, N, QX, QY,
/// MI1, MS1, MY, MT, TU.
cuadricula::HojaDeCuadricula ColoqueSolicitaciones(const EscaleraHCalculada& escalera);

/// Steel and stirrups at the same stations. Columns: degrees from the centre; ASXI and ASXS of flexure alone;
/// torsion steel of a face, LON / 2; the minimum; design steel of the lower and the upper face, which is
/// flexure and torsion together and never below the minimum; AsY; the stirrups as a text.
cuadricula::HojaDeCuadricula ColoqueDiseno(const EscaleraHCalculada& escalera);

}  // namespace trabex::helices::salida
