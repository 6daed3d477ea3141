#pragma once

#include <string>
#include <vector>

#include "jet/Tabla.h"

namespace trabex::jet {

/// Takes the tables of a database, one after another, each with its rows.
class Receptor {
  public:
    virtual ~Receptor() = default;

    virtual void RecibirTabla(const std::string& nombre, const std::vector<Columna>& columnas) = 0;
    /// A row of the last table. A value that could not be read is null.
    virtual void RecibirFila(const Fila& fila) = 0;
};

}  // namespace trabex::jet
