#pragma once

#include <functional>
#include <string>

#include "lote/Calculo.h"
#include "reports/documento/Documento.h"

namespace trabex::lote {

/// The bytes of a drawing as a picture, for whoever can draw.
using Pintar = std::function<almacen::Bytes(const Dibujo& dibujo)>;

/// The calculation memo of a project; where nobody can draw, without drawings: cover with its data and room
/// for a signature, index, summary of all elements, and a chapter a kind with what its module tells of each
/// element. `calculado` must live as long as the document: drawings are made when a writer comes to them.
documento::Documento ComponerMemoria(const ProyectoCalculado& calculado, const std::string& fecha,
                                     const Separadores& numeros, const Pintar& pintar);

/// The same as flat tables, one a sheet of a workbook, before the memo's own.
documento::Documento ComponerMemoriaEnHojas(const ProyectoCalculado& calculado, const std::string& fecha,
                                            const Separadores& numeros, const Pintar& pintar);

}  // namespace trabex::lote
