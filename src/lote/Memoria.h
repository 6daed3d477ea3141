#pragma once

#include <functional>
#include <string>
#include <vector>

#include "lote/Calculo.h"
#include "reports/documento/Documento.h"

namespace trabex::lote {

/// The drawings of an element as pictures with their captions, from whoever can draw.
using Ilustrar = std::function<std::vector<documento::Imagen>(const Elemento& elemento)>;

/// The calculation memo of a project; where nobody can draw, without drawings: cover with its data and room
/// for a signature, index, summary of all elements, and a chapter a kind with what its module tells of each
/// element. `calculado` must live as long as the document.
documento::Documento ComponerMemoria(const ProyectoCalculado& calculado, const std::string& fecha,
                                     const Separadores& numeros, const Ilustrar& ilustrar);

/// The same as flat tables, one a sheet of a workbook, before the memo's own.
documento::Documento ComponerMemoriaEnHojas(const ProyectoCalculado& calculado, const std::string& fecha,
                                            const Separadores& numeros, const Ilustrar& ilustrar);

}  // namespace trabex::lote
