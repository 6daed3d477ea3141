#pragma once

#include "reports/documento/Documento.h"
#include "reports/documento/MaquetaReporte.h"

namespace trabex::documento {

/// A layout and the rows that it names make a document. Pictures are left for its writers to read: the
/// document keeps their database open.
///
/// A database that can't be opened gives a report without rows. Throws ErrorEjecucion 321, with the file, the
/// line and the name, when the database is there and has not a table or column that the layout names, even
/// where no row would have come to it.
Documento Componer(const MaquetaReporte& maqueta, const Separadores& separadores);

}  // namespace trabex::documento
