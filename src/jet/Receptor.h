#pragma once

#include <cstdint>

#include "jet/Tabla.h"

namespace trabex::jet {

/// What a database has that a receptor does not get.
enum class Falta : std::uint8_t {
    Indice,    ///< of a table of users; keys are such
    Objeto,    ///< a relation, query, form, table of another file, property of the whole, …
    Clave,     ///< a password, or pages that lie under a key
    Orden,     ///< an order of texts other than the general one
    Formato,   ///< it is of Jet 3: the properties of its tables go too
    Ilegible,  ///< a table of users that can't be read whole
};

/// Takes the tables of a database, one after another, each with its rows.
class Receptor {
  public:
    virtual ~Receptor() = default;

    virtual void RecibirTabla(const Tabla& tabla) = 0;
    /// A row of the last table. A value that could not be read is null.
    virtual void RecibirFila(const Fila& fila) = 0;
    virtual void RecibirFalta(Falta falta) = 0;
};

}  // namespace trabex::jet
