#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

#include "base/Proyecto.h"
#include "drawing/Lienzo.h"
#include "reports/documento/Documento.h"
#include "store/Conexion.h"
#include "store/Valor.h"
#include "store/proyecto/ProyectoAbierto.h"

// What an element is to whoever reads, calculates and writes whole projects without knowing any element: a
// record that its wing fills.

namespace trabex::lote {

/// A record that only the module that made it can read.
using Registro = std::shared_ptr<const void>;

template <class Tipo>
Registro Guardar(Tipo registro) {
    return std::make_shared<const Tipo>(std::move(registro));
}
template <class Tipo>
const Tipo& Leer(const Registro& registro) {
    return *static_cast<const Tipo*>(registro.get());
}

/// An element of a project, read and calculated.
struct Elemento {
    std::string Nombre;
    Registro Calculado;  ///< its data and its results
    std::string Error;   ///< text of the run-time error that ended its calculation, or empty
};

struct Modulo;

/// The elements of one kind in a project, in list order. Nothing in it changes once it is calculated: several
/// threads may read it.
struct Lista {
    const Modulo* De;
    Registro Generales;  ///< materials and factors; null where the kind keeps none
    std::vector<Elemento> Elementos;
};

/// A cell of the summary: a text, or a number in its column's format.
using Celda = std::variant<std::string, double>;

struct ColumnaResumen {
    const char* Encabezado;
    const char* Formato;  ///< of numbers, as in base/Formatos.h; null in a column of texts
};

/// A drawing of an element, whole or as much of it as a sheet takes, on a surface of any size.
struct Dibujo {
    std::string Clave;   ///< "geometria": what tells its file from the element's others
    std::string Titulo;  ///< caption in reports
    std::function<void(dibujo::Lienzo&)> Dibujar;
    /// Further columns of the scratch table `Grafico`.
    std::vector<std::pair<std::string_view, almacen::Valor>> Columnas{};
};

/// How the reports of a kind are made. Layouts are files of the program's folder `Reportes`.
struct ReportesDeModulo {
    const char* Titulo;      ///< `Titulo` of the scratch table `Generales`
    const char* Resultados;  ///< layout of the report of results; null: they have none
    const char* Graficos;    ///< layout of the report of drawings; null: they have none
    /// Fills the kind's own tables of the scratch database; null where it has no report of results.
    void (*Montar)(almacen::Conexion& temporal, const Lista& lista);
    /// `Titulo` in the report of drawings; null: the same.
    const char* TituloGraficos = nullptr;
    /// Fills the tables that the report of drawings shows beside them; null where it shows none.
    void (*MontarConGraficos)(almacen::Conexion& temporal, const Lista& lista) = nullptr;
    /// The report of results tells one element: each gets its own, staged as a list of one.
    bool UnoPorElemento = false;
};

/// A file for another program, with all elements of a kind.
struct Intercambio {
    const char* Clave;      ///< name of its folder, and of the output in the command line
    const char* Rotulo;     ///< how the closing lines name it
    const char* Extension;  ///< the file has the project's name
    /// Writes the file whole or not at all; `programa` holds templates. The path under which the file stays
    /// that stood there, where another program had written it; else empty. Throws ErrorEjecucion; `enCurso`
    /// then names the element at which it stopped, where it was one.
    std::filesystem::path (*Escribir)(const std::filesystem::path& programa,
                                      const std::filesystem::path& destino, const DatosDelProyecto& datos,
                                      const Lista& lista, std::string& enCurso);
};

/// What the calculation memo tells of an element, before its drawings and after them.
struct ParteDeMemoria {
    std::vector<documento::Bloque> Datos;
    std::vector<documento::Bloque> Resultados;
};

/// A kind's chapter of the calculation memo.
struct MemoriaDeModulo {
    std::span<const char* const> (*Metodo)();  ///< assumptions of the method, a paragraph each
    ParteDeMemoria (*Contar)(const Lista& lista, const Elemento& elemento, const Separadores& numeros);
    /// An element's rows of the flat tables over all of its kind, by the name of each table; none where it
    /// has no results.
    std::vector<std::pair<std::string, documento::Tabla>> (*Tablas)(const Lista& lista,
                                                                    const Elemento& elemento);
};

/// An element's module. Functions that are null stand for what the element does not have.
struct Modulo {
    const char* Nombre;          ///< one element of the kind, as messages name it: "losa"
    const char* Plural;          ///< several of them, as messages name them: "losas"
    const char* Clave;           ///< key of its list in the results, folder of its sheets: "losas"
    const char* ClaveGenerales;  ///< key of its materials and factors; null where it keeps none
    std::string_view Consulta;   ///< opens its list

    /// Materials and factors of the project.
    Registro (*LeerGenerales)(almacen::Conexion& proyecto);
    /// Reads the element on which the list stands, and calculates it. Runs on several threads at once, each
    /// on a connection of its own. A run-time error of the calculation ends in `Error`.
    Elemento (*Calcular)(almacen::proyecto::ProyectoAbierto& proyecto, const Registro& generales);

    /// JSON objects whose keys are the records' field names.
    std::string (*GeneralesJson)(const Registro& generales);
    std::string (*Json)(const Elemento& elemento);

    /// The summary: its first column is the element's name. A row has a cell for each further column.
    std::span<const ColumnaResumen> Columnas;
    std::vector<Celda> (*Resumir)(const Elemento& elemento);

    /// The drawings of an element, and its pages on paper. They refer to the list.
    std::vector<Dibujo> (*Dibujos)(const Lista& lista, const Elemento& elemento) = nullptr;
    std::vector<std::function<void(dibujo::Lienzo&)>> (*Papel)(const Lista& lista, const Elemento& elemento,
                                                               const DatosDelProyecto& datos) = nullptr;

    const ReportesDeModulo* Reportes = nullptr;
    const MemoriaDeModulo* Memoria = nullptr;
    std::span<const Intercambio> Intercambios{};
};

}  // namespace trabex::lote
