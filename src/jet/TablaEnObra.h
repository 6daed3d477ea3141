#pragma once

#include <memory>
#include <string>
#include <vector>

#include "jet/Filas.h"
#include "jet/Indice.h"
#include "jet/Paginas.h"
#include "jet/Tabla.h"

namespace trabex::jet {

/// A table that takes rows, and then writes its definition.
class TablaEnObra {
  public:
    enum class Clase : char { Usuario = 'N', Sistema = 'S' };

    /// `definicion` is its first page, which is there.
    TablaEnObra(Paginas& paginas, std::uint32_t definicion, std::vector<Columna> columnas, Clase clase,
                std::vector<Indice> indices = {});

    void Agregar(Fila fila);
    /// Writes maps, trees and the definition; no row comes after it.
    void Cerrar();
    /// The last number that its automatic column gave: a row without one takes the next.
    void Numerar(std::int64_t ultimo) { ultimo_ = ultimo; }

    std::uint32_t Definicion() const { return definicion_; }

  private:
    void Numerar(Fila& fila);

    Paginas& paginas_;
    std::uint32_t definicion_;
    std::vector<Columna> columnas_;
    Clase clase_;
    std::vector<Indice> indices_;
    PaginasDeFilas filas_;
    ValoresLargos largos_;
    std::uint32_t cuantas_ = 0;
    std::int64_t ultimo_ = 0;
};

}  // namespace trabex::jet
