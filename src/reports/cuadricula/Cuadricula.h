#pragma once

#include <string>
#include <vector>

#include "base/Formatos.h"
#include "reports/documento/Documento.h"

namespace trabex::cuadricula {

/// A sheet of cells with a heading over each column and one before each row.
struct HojaDeCuadricula {
    std::string Nombre;
    documento::Tabla Celdas;             ///< columns with their headings and widths in mm, and the rows
    std::vector<std::string> Cabeceras;  ///< of the rows, from the first on; missing ones are empty
    double AnchoDeCabeceras = 15;        ///< mm

    const std::string& Cabecera(std::size_t fila) const;
    /// Without any, a page spares their column; what leaves the grid as data has it all the same.
    bool TieneCabeceras() const;
};

/// A grid as its window shows it, free of the window: what is previewed, printed and exported. Exporters and
/// printing take it as it is and never change it.
struct Cuadricula {
    std::vector<HojaDeCuadricula> Hojas;
    Separadores Locales;  ///< with which its numbers show
};

/// The width that row headings take as a column, in mm: their own on a grid of one sheet, a fixed one on a
/// grid of several.
double AnchoDeColumnaDeCabeceras(const Cuadricula& cuadricula, const HojaDeCuadricula& hoja);

/// The sheet with its row headings as a first column of cells, as what leaves the grid needs it.
documento::Tabla ConCabeceras(const Cuadricula& cuadricula, const HojaDeCuadricula& hoja);

/// The text of a cell as the grid shows it.
std::string TextoDeCelda(const documento::Tabla& tabla, std::size_t fila, std::size_t columna,
                         const Separadores& separadores);

/// The text over a column: that of its group, a blank, and its own, on one line.
std::string TituloDeColumna(const documento::ColumnaDeTabla& columna);

}  // namespace trabex::cuadricula
