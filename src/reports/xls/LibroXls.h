#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/Fecha.h"

namespace trabex::xls {

/// A workbook of the Excel 97-2003 format (.xls), as plain data: fill it, then save it.
///
/// Rows and columns count from 0. Lengths are points (1/72 inch), colours 0xRRGGBB, texts UTF-8.

enum class AlineacionXls : std::uint8_t { General = 0, Izquierda = 1, Centro = 2, Derecha = 3 };
enum class VerticalXls : std::uint8_t { Arriba = 0, Centro = 1, Abajo = 2 };
enum class BordeXls : std::uint8_t { Ninguno = 0, Fino = 1, Medio = 2, Grueso = 5, Doble = 6 };
enum class PapelXls : std::uint16_t { Carta = 1, Tabloide = 3, Oficio = 5, A3 = 8, A4 = 9 };

struct BordesXls {
    BordeXls Izquierdo = BordeXls::Ninguno;
    BordeXls Derecho = BordeXls::Ninguno;
    BordeXls Superior = BordeXls::Ninguno;
    BordeXls Inferior = BordeXls::Ninguno;
    std::uint32_t Color = 0;

    bool operator==(const BordesXls&) const = default;
};

/// How a cell looks.
struct EstiloXls {
    std::string Fuente = "Arial";
    double Puntos = 10;
    bool Negrita = false;
    bool Cursiva = false;
    bool Subrayado = false;
    std::optional<std::uint32_t> Color{};  ///< of the text; nothing is the window's own
    /// "0", "0.00", "#,##0", "dd/mm/yyyy"…, in the file's own language; empty: General.
    std::string Formato{};
    AlineacionXls Alineacion = AlineacionXls::General;
    VerticalXls Vertical = VerticalXls::Abajo;
    bool AjustarTexto = false;  ///< long texts break into lines
    std::optional<std::uint32_t> Relleno{};
    BordesXls Bordes{};

    bool operator==(const EstiloXls&) const = default;
};

/// What a cell holds. An infinity or NaN is written as an empty cell, a day before 1900 as its text.
using ValorXls = std::variant<std::monostate, std::string, double, Fecha>;

struct CeldaXls {
    ValorXls Valor;
    std::uint16_t Estilo = 0;  ///< place in the book's styles
};

struct FilaXls {
    double Alto = 0;  ///< 0: by its largest font
    std::vector<CeldaXls> Celdas;
};

/// Cells shown as one: both ends belong to it.
struct RangoXls {
    std::size_t Fila = 0;
    std::size_t Columna = 0;
    std::size_t FilaFinal = 0;
    std::size_t ColumnaFinal = 0;
};

/// What a book must know of a picture's file beforehand, to write it bit by bit.
struct FichaDeImagen {
    std::optional<std::size_t> Clase;  ///< of the file: PNG, JPEG or BMP; one of another kind is left out
    std::size_t Largo = 0;
    std::array<std::uint64_t, 2> Huella{};  ///< tells one picture from another

    bool operator==(const FichaDeImagen&) const = default;
};
FichaDeImagen FichaDe(std::string_view bytes);

/// A picture over the cells, its corner on that of a cell. Its bytes are read where they are written and not
/// kept: a book of many pictures takes the memory of one.
struct ImagenXls {
    FichaDeImagen Ficha;
    std::function<std::string()> Leer;  ///< the file of which the card was made
    std::size_t Fila = 0;
    std::size_t Columna = 0;
    double Ancho = 0;
    double Alto = 0;
};

struct PaginaXls {
    PapelXls Papel = PapelXls::Carta;
    bool Horizontal = false;
    bool AjustarAlAncho = false;  ///< shrinks so that all columns fit on one page
    double Izquierdo = 54;        ///< margins
    double Derecho = 54;
    double Superior = 72;
    double Inferior = 72;
    std::string Encabezado;  ///< in the format's codes: "&L", "&C", "&R" begin a part, "&P" of "&N" pages
    std::string Pie;
};

struct HojaXls {
    std::string Nombre;          ///< what the format refuses in it is replaced; repeated names get a number
    std::vector<double> Anchos;  ///< of the first columns; 0 or missing: the usual width
    std::vector<FilaXls> Filas;
    std::vector<RangoXls> Combinadas;
    std::vector<ImagenXls> Imagenes;
    std::vector<std::size_t> SaltosDePagina;  ///< rows that begin a page
    std::size_t FilasFijas = 0;               ///< heading rows: stay when scrolling, repeat on each page
    bool Filtro = false;     ///< each cell of the last heading row opens a filter of its column
    bool Cuadricula = true;  ///< lines between cells on the screen
    PaginaXls Pagina;
};

struct LibroXls {
    std::string Titulo{};
    std::string Autor{};
    std::vector<EstiloXls> Estilos = std::vector<EstiloXls>(1);
    std::vector<HojaXls> Hojas{};
};

inline constexpr std::size_t FilasPorHojaXls = 65536;
inline constexpr std::size_t ColumnasXls = 256;

/// The place of a style in the book, which takes it in when it is new.
std::uint16_t EstiloDe(LibroXls& libro, const EstiloXls& estilo);

/// The cell at a place of the sheet, which grows to hold it.
CeldaXls& CeldaEn(HojaXls& hoja, std::size_t fila, std::size_t columna);

/// Writes the book, replacing a file whole. A sheet of more than 65536 rows goes on in further sheets,
/// "Nombre (2)"…, with its heading rows again; columns past the 256th are left out; a text keeps its first
/// 32767 characters. A book without sheets gets an empty one. `antesDeCada` is told how many pictures of how
/// many are written; what it throws ends the writing, and the file that stood there stays. Throws
/// ErrorEjecucion 6 past 2000 styles, 57 when a picture is no longer what it was, and as EscribirArchivo
/// does.
void GuardarXls(const LibroXls& libro, const std::filesystem::path& camino,
                const std::function<void(std::size_t hechas, std::size_t total)>& antesDeCada = {});

}  // namespace trabex::xls
