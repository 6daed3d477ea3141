#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "base/Formatos.h"
#include "store/Valor.h"

namespace trabex::documento {

/// A report as what it says, free of where it goes: a layout and its data make one Documento, and each output
/// (paper, PDF, viewer, HTML, RTF, XLS) is a writer of it. Texts are UTF-8, a line feed in them breaks a
/// line. Lengths are millimetres, font sizes points.

enum class TamanoPagina { A4, Carta };
enum class Alineacion { Izquierda, Centro, Derecha };

/// In the texts of a page's header and footer: the number of the page, and how many there are. Outputs
/// without pages leave those texts out.
inline constexpr char MarcaPagina = '\x01';
inline constexpr char MarcaPaginas = '\x02';

/// A line at the head or the foot of every page; nothing is drawn when all its texts are empty.
struct BandaDePagina {
    std::string Izquierda;
    std::string Centro;
    std::string Derecha;
};

/// A line of the letterhead, in a size of its own.
struct LineaDeMembrete {
    std::string Texto;
    double Puntos = 10;
    bool Negrita = false;
};

struct Pagina {
    TamanoPagina Tamano = TamanoPagina::A4;
    bool Apaisada = false;
    double MargenIzquierdo = 18;
    double MargenSuperior = 15;
    double MargenDerecho = 15;
    double MargenInferior = 15;
    BandaDePagina Encabezado;
    BandaDePagina Pie;
    std::vector<LineaDeMembrete> Membrete;  ///< at the top of every page, within its margins
    Alineacion LadoDeMembrete = Alineacion::Centro;
};

/// The width and height of the sheet, after its orientation.
struct MedidaPagina {
    double Ancho;
    double Alto;
};
MedidaPagina MedidaDe(const Pagina& pagina);
/// The part of the sheet within its margins; header and footer stand in the margins.
MedidaPagina MedidaUtil(const Pagina& pagina);

/// A heading, of level 1 to 3. It stays on the page of what follows it.
struct Titulo {
    int Nivel = 1;
    std::string Texto;
};

struct Parrafo {
    std::string Texto;
    bool Destacado = false;
};

/// How a value shows. `Formato` is, by the value's kind:
///   number    "0", "0.00", "#,##0.00"… as in base/Formatos.h; empty: as many digits as it has
///   date      always dd/MM/yyyy
///   boolean   the texts of true and false, "Maciza|Nervada"; empty: "Sí|No"
/// A number whose format holds bars is a choice: the text that stands at its place, counted from 0.
/// A null shows as nothing.
std::string TextoDeValor(const almacen::Valor& valor, const std::string& formato,
                         const Separadores& separadores);

/// The value as a double when it is a number of any width.
std::optional<double> NumeroDe(const almacen::Valor& valor);

/// A block of names and values, laid out in `Columnas` pairs a line.
struct Ficha {
    struct Dato {
        std::string Rotulo;
        almacen::Valor Contenido;
        std::string Formato;
        std::string Unidad;  ///< follows the value
    };
    int Columnas = 2;
    std::vector<Dato> Datos;
};

struct ColumnaDeTabla {
    std::string Titulo;
    std::string Grupo;  ///< neighbours of the same group share a title above theirs
    std::string Formato;
    double Ancho = 20;  ///< in the proportion of its neighbours' when the table does not fit the page
    Alineacion Lado = Alineacion::Derecha;
};

struct FilaDeTabla {
    std::vector<almacen::Valor>
        Celdas;              ///< one a column; a number stays a number in outputs that know numbers
    bool Destacada = false;  ///< totals: bold, under a rule
    bool Rotulo = false;     ///< its last cell is a text that reaches over the columns after it
};

/// How a table looks on pages.
struct EstiloDeTabla {
    bool Titulos = true;           ///< those of its columns are shown
    bool PrimeraEsTitulo = false;  ///< its first column holds titles of its rows
    bool Lineas = false;           ///< upright lines between cells as well
    bool Color = true;             ///< or else greys
    bool Sombras = true;           ///< grounds under titles
    bool Filtros = false;  ///< a workbook offers to choose among its rows, if it is alone on its sheet
};

/// A table. Where it breaks over pages its header is repeated; a row is never broken.
struct Tabla {
    std::vector<ColumnaDeTabla> Columnas;
    std::vector<FilaDeTabla> Filas;
    EstiloDeTabla Estilo{};

    bool TieneGrupos() const;
    /// How many columns the cell of a row reaches over, from its own on.
    std::size_t Abarca(const FilaDeTabla& fila, std::size_t columna) const;
    /// The side of a cell: that of its column, or the left where it reaches over several.
    Alineacion Lado(const FilaDeTabla& fila, std::size_t columna) const;
    /// The columns' widths, made narrower in proportion when they do not fit in `ancho`.
    std::vector<double> Anchos(double ancho) const;
};

/// The titles above the columns' titles: neighbours of one group are one cell. Without group: an empty text.
struct GrupoDeColumnas {
    std::string Titulo;
    std::size_t Desde = 0;
    std::size_t Cuantas = 1;
};
std::vector<GrupoDeColumnas> GruposDe(const Tabla& tabla);

/// A picture: the bytes of a Windows bitmap or a PNG. They are read when a writer needs them and not kept, so
/// that a document of many drawings takes the memory of one.
struct Imagen {
    std::function<almacen::Bytes()>
        Leer;          ///< empty bytes, or ones that are no picture: a note stands in its place
    double Ancho = 0;  ///< the room it fills, keeping its proportions; 0: the width of the text
    double Alto = 0;   ///< 0: the height of the text
    std::string Pie;   ///< caption, on the same page
    /// The strokes that it was drawn with, for outputs that draw; nothing or empty where it has none.
    std::function<almacen::Bytes()> LeerTrazos{};
};

/// The size at which a picture of so many pixels fills its room, within the room that there is.
MedidaPagina MedidaDe(const Imagen& imagen, double pixelesAncho, double pixelesAlto,
                      const MedidaPagina& sitio);

/// What stands in the place of a picture that can't be read.
inline constexpr const char* ImagenIlegible = "(El gráfico no se pudo leer)";

struct SaltoDePagina {};

/// The sections behind its own, with their pages where the output has any.
struct Indice {};

using Bloque = std::variant<Titulo, Parrafo, Ficha, Tabla, Imagen, SaltoDePagina, Indice>;

/// A part of the report: an anchor in HTML, a sheet in XLS.
struct Seccion {
    std::string Nombre;
    bool PaginaNueva = false;  ///< begins on a page of its own
    bool Junta = false;        ///< is not broken over pages while it fits on one
    std::vector<Bloque> Bloques;
};

struct Documento {
    std::string Titulo;
    std::string Autor;
    Pagina Papel;
    double Letra = 9;  ///< size of the running text; everything else is in proportion to it
    Separadores Locales;
    std::vector<Seccion> Secciones;

    /// The names of the sections behind that of an index, those without name left out.
    std::vector<std::string> SeccionesTras(const Indice& indice) const;
};

}  // namespace trabex::documento
