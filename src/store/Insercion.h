#pragma once

#include <memory>
#include <string_view>

#include "store/Valor.h"

namespace trabex::almacen {

class Conexion;

/// Adds many rows to one table: the statement is prepared once and no row is kept, where a recordset would
/// keep them all. Values are typed as a recordset types them. Nothing here throws; on a connection or a table
/// that is not there, nothing is added. It must not outlive its connection's being open.
class Insercion {
  public:
    Insercion(Conexion& conexion, std::string_view tabla);
    ~Insercion();
    Insercion(const Insercion&) = delete;
    Insercion& operator=(const Insercion&) = delete;

    bool Abierta() const { return interna_ != nullptr; }

    /// Sets a column of the row to come. A value that the column refuses, an infinity or NaN among them,
    /// leaves it null: a row of a report is worth more than its worst number. False then, and where there is
    /// no such column.
    bool Poner(std::string_view campo, const Valor& valor);
    /// Adds the row; what was not set in it is null. False when the engine refused.
    bool Agregar();

  private:
    struct Interna;
    std::unique_ptr<Interna> interna_;
};

}  // namespace trabex::almacen
