#pragma once

#include <span>
#include <string>
#include <vector>

#include "store/Conexion.h"
#include "store/Recordset.h"

namespace trabex::almacen {

/// The tables that keep one kind of element by its name, in the order in which its statements run.
struct TablasDeElemento {
    std::span<const char* const> Hijas;  ///< its rows of data
    const char* Lista;                   ///< one row an element
};

/// The names of a list's elements, in its order. The list stays on its record.
std::vector<std::string> Nombres(Recordset& lista);

/// A list still holds an element. A name that holds a quote breaks the question, which is then not answered
/// with no.
bool EstaEnLista(Conexion& conexion, const char* lista, const std::string& nombre);

/// Gives an element another name in each of its tables, the list last, as one save. A name that holds a quote
/// breaks its statements, and nothing changes. False when it could not be stored; what was stored then
/// stands.
bool RenombrarElemento(Conexion& conexion, const TablasDeElemento& tablas, const std::string& actual,
                       const std::string& nuevo);

/// Deletes the element on which its list stands, its rows of data first, as one save. False when it could not
/// be deleted; what was stored then stands.
bool BorrarElemento(Conexion& conexion, const TablasDeElemento& tablas, Recordset& lista);

}  // namespace trabex::almacen
