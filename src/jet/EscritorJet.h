#pragma once

#include <list>
#include <string>
#include <string_view>
#include <vector>

#include "jet/Paginas.h"
#include "jet/Tabla.h"
#include "jet/TablaEnObra.h"

namespace trabex::jet {

/// Writes a database of the Jet 4 format: tables with their rows, and the catalogue that names them. Without
/// forms, queries, relations, and indexes on tables of users.
///
/// Sources: the format as mdbtools' authors document it (pages, definitions, rows, maps, long values), and
/// the marks that readers of other hands expect of the original engine.
class EscritorJet {
  public:
    /// `ahora` is the date of its objects.
    explicit EscritorJet(double ahora);

    /// A table of up to 255 columns; the rows that come then are its own.
    void AgregarTabla(const Tabla& tabla);
    /// Throws ErrorEjecucion as CodificarFila does, and 6 past two gigabytes.
    void AgregarFila(const Fila& fila);

    /// The whole file. Nothing can be added after it.
    std::string Terminar();

  private:
    struct Objeto {
        std::string Nombre;
        std::uint32_t Id;
        std::string Propiedades;
    };

    double ahora_;
    Paginas paginas_;
    std::list<TablaEnObra> tablas_;
    std::vector<Objeto> objetos_;
};

/// The date that the writer of a file was given; 0 where the file tells none.
double FechaDeEscritura(std::string_view archivo);

}  // namespace trabex::jet
