#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "store/Campos.h"
#include "store/Conexion.h"
#include "store/Recordset.h"
#include "store/Valor.h"

namespace trabex::almacen {

/// What ties rows to their element: the value that they share in one column.
struct Clave {
    const char* Columna;
    Valor Dato;  ///< a text or a whole number
};
Clave PorNombre(const std::string& nombre);
Clave PorID(std::int32_t id);

/// "Nombre='…'" or "ID=…": what statements and searches take. Of a text that holds a quote it is empty, which
/// breaks what it is put into.
std::string Criterio(const Clave& clave);

/// A table of rows of elements.
struct TablaDeFilas {
    const char* Nombre;
    const char* Orden = nullptr;  ///< the column by which they are read, where there is one
    bool Numerada = false;        ///< that column is the row's running number, from 1, rewritten at each save
};

/// Opens an element's rows, in their order. What they hold is remembered: the next save of these rows happens
/// only over the same.
void AbrirFilas(Conexion& conexion, Recordset& registros, const TablaDeFilas& tabla, const Clave& clave);

/// Deletes an element's rows.
void BorrarFilas(Conexion& conexion, const TablaDeFilas& tabla, const Clave& clave);

/// Forgets what was read of an element's rows: another element takes its key.
void OlvidarFilas(Conexion& conexion, const TablaDeFilas& tabla, const Clave& clave);

/// Writes an element's rows over its stored ones, its key and number in each: `poner` fills the rest of row k
/// of 1 … filas. False when a row could not be written, or when the stored rows are not those that were read.
bool EscribirFilas(Conexion& conexion, const TablaDeFilas& tabla, const Clave& clave, std::size_t filas,
                   const std::function<void(Recordset&, std::size_t)>& poner);

/// Adds the records of a set to another of the same columns, as they stand. False when one could not be
/// written.
bool CopiarFilas(Recordset& origen, Recordset& destino);

/// Writes the one row of a table of general data over what was read of it, as one save. False when it could
/// not be stored; what was stored then stands.
bool ReemplazarFila(Conexion& conexion, const char* tabla, const std::function<void(Recordset&)>& poner);

/// Opens the set of such a table on its row, which `poner` first fills where there is none. False when the
/// table can't be reached or written.
bool AbrirFila(Conexion& conexion, Recordset& registros, const char* tabla,
               const std::function<void(Recordset&)>& poner);

/// An element's rows as records, from slot `desde` of the array on; the slots before it hold empty records.
template <class Registro, class Campos>
void LeerFilas(Conexion& conexion, const TablaDeFilas& tabla, const Clave& clave,
               std::vector<Registro>& arreglo, std::size_t desde, const Campos& campos) {
    Recordset registros;
    AbrirFilas(conexion, registros, tabla, clave);
    arreglo.assign(static_cast<std::size_t>(registros.NumeroRegistros()) + desde, {});
    for (std::size_t k = desde; k < arreglo.size(); ++k) {
        LeerCampos(registros, arreglo[k], campos);
        registros.MoverAlSiguiente();
    }
}

/// Records from slot `desde` of an array on as an element's rows, over its stored ones. False when one could
/// not be written.
template <class Registro, class Campos>
bool GuardarFilas(Conexion& conexion, const TablaDeFilas& tabla, const Clave& clave,
                  const std::vector<Registro>& arreglo, std::size_t desde, const Campos& campos) {
    const std::size_t filas = arreglo.size() < desde ? 0 : arreglo.size() - desde;
    return EscribirFilas(conexion, tabla, clave, filas, [&](Recordset& registros, std::size_t k) {
        PonerCampos(registros, arreglo[desde + k - 1], campos);
    });
}

}  // namespace trabex::almacen
