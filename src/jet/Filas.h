#pragma once

#include <deque>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "jet/Paginas.h"
#include "jet/Tabla.h"

namespace trabex::jet {

/// Whether a column's values stand at a fixed place of the row.
bool EsFija(Tipo tipo);
/// Whether they stand outside the row when they are long.
bool EsLarga(Tipo tipo);
/// Bytes of a fixed one in the row; a logical takes none.
std::size_t BytesDe(Tipo tipo);

/// The values of long columns, on pages of their own.
class ValoresLargos {
  public:
    explicit ValoresLargos(Paginas& paginas) : paginas_(paginas) {}

    /// The twelve bytes that stand for a value in its row, with the value behind them where it is short.
    std::string Guardar(std::size_t columna, std::string_view bytes);
    /// The pages of a column's values.
    const std::deque<std::uint32_t>& Numeros(std::size_t columna);

  private:
    PaginasDeFilas& De(std::size_t columna);

    Paginas& paginas_;
    std::map<std::size_t, PaginasDeFilas> de_;
};

/// A row as its page keeps it: number of columns, fixed values, variable ones with the table of their ends,
/// mask of nulls. Throws ErrorEjecucion: 13 where a value is not of its column's kind, 6 where it is past its
/// range or width, or the row is longer than a page.
std::string CodificarFila(std::span<const Columna> columnas, std::span<const Valor> fila,
                          ValoresLargos& largos);

}  // namespace trabex::jet
