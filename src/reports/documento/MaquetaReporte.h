#pragma once

#include <array>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/ErrorEjecucion.h"
#include "reports/documento/Documento.h"

namespace trabex::documento {

/// A report layout, as its file says it: docs/reportes.md tells the language. It names tables and columns of
/// the scratch database and holds no data.

/// A column as a layout names it: "Bo", of the nearest row around that has it, or "Generales.Titulo".
struct Referencia {
    std::string Tabla;  ///< empty: of the nearest row around
    std::string Columna;
    int Linea = 0;
};

/// A text with columns in it: literal pieces and references in turn.
struct Plantilla {
    struct Trozo {
        std::string Literal;
        std::optional<Referencia> Campo;
        std::string Formato;
    };
    std::vector<Trozo> Trozos;
};

/// The rows an element walks.
struct FuenteDeFilas {
    std::string Tabla;
    std::string Enlace;  ///< only those whose column equals the column of the same name of the row around
    std::string Orden;   ///< column to order by; empty: as they were written
    std::string Por;     ///< only the first row of each value of this column
    int Linea = 0;
};

/// What stands in a place of a row: nothing, a column, a text, or a total over the table's rows.
struct CeldaDeMaqueta {
    enum class Clase { Nada, Campo, Texto, Suma, Maximo, Minimo, Cuenta };
    Clase Que = Clase::Nada;
    Referencia Campo;
    Plantilla Texto;
};

struct Elemento;
using Elementos = std::vector<Elemento>;

struct ElementoTitulo {
    int Nivel = 1;
    Plantilla Texto;
};
struct ElementoParrafo {
    bool Destacado = false;
    Plantilla Texto;
};
struct ElementoFicha {
    struct Campo {
        std::string Rotulo;
        Referencia Dato;
        std::string Formato;
        std::string Unidad;
    };
    int Columnas = 2;
    std::vector<Campo> Campos;
};
struct ElementoTabla {
    /// A row of cells for each record, for the last record only, or once below all.
    enum class Cuando { Siempre, Ultima, Total };
    struct Fila {
        Cuando Sale = Cuando::Siempre;
        std::vector<CeldaDeMaqueta> Celdas;
    };
    FuenteDeFilas Fuente;
    std::vector<ColumnaDeTabla> Columnas;
    std::vector<Fila> Filas;
};
struct ElementoImagen {
    Referencia Campo;     ///< the column that holds its bytes; without one:
    Plantilla Archivo{};  ///< its file, by its path or its name beside the layout
    double Ancho = 0;
    double Alto = 0;
    Plantilla Pie;
};
struct ElementoSeccion {
    Plantilla Nombre;
    bool PaginaNueva = false;
    bool Junta = false;
    Elementos Dentro;
};
struct ElementoGrupo {
    FuenteDeFilas Fuente;
    Elementos Dentro;
};
struct ElementoSi {
    Referencia Condicion;              ///< holds when true, not 0, or a text that is not empty
    std::optional<FuenteDeFilas> Hay;  ///< in its place: holds when there are such rows
    bool Niega = false;
    Elementos Dentro;
    Elementos Sino;
};
struct ElementoSubreporte {
    std::size_t Numero = 0;  ///< of the layout's subreports, from 0
};
struct ElementoSalto {};

struct Elemento {
    std::variant<ElementoTitulo, ElementoParrafo, ElementoFicha, ElementoTabla, ElementoImagen,
                 ElementoSeccion, ElementoGrupo, ElementoSi, ElementoSubreporte, ElementoSalto>
        Contenido;
};

/// A table that a layout reads, and the database in which it is looked for.
struct TablaDeMaqueta {
    std::string Nombre;
    std::filesystem::path Ubicacion;  ///< as the layout stores it, until it is set
    int Linea = 0;
};

struct MaquetaReporte {
    std::filesystem::path Archivo;
    Plantilla Titulo;
    Plantilla Autor;
    Pagina Papel;  ///< without its header and footer, which are:
    std::array<Plantilla, 3> Cabecera;
    std::array<Plantilla, 3> Pie;
    double Letra = 9;
    std::vector<TablaDeMaqueta> Tablas;
    std::vector<MaquetaReporte> Subreportes;
    Elementos Cuerpo;
};

/// Reads a layout file and those of its subreports, which stand in the same folder. The files are opened for
/// reading only. Throws ErrorEjecucion: 53 when a file is missing, 321 with the file, the line and the word
/// at fault when the text is no layout.
MaquetaReporte LeerMaqueta(const std::filesystem::path& archivo);

/// The error of a line of a layout.
ErrorEjecucion ErrorDeMaqueta(const std::filesystem::path& archivo, int linea, const std::string& falta);

}  // namespace trabex::documento
