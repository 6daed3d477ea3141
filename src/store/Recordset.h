#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "base/ErrorEjecucion.h"
#include "store/Columna.h"
#include "store/Valor.h"

namespace trabex::almacen {

class Conexion;

enum class Direccion { Adelante = 1, Atras = -1 };

/// A static, client-side, optimistic recordset: its rows are read at opening; add-new, set and update write
/// through by row identity, only over a row that still holds what was read; a new row stands at the end until
/// the set is opened again.
///
/// Nothing here throws. A set that could not be opened is closed, has no records, and does nothing. When a
/// save is taken back, the sets it touched stand as before it. Positions count from 1; 0 is before the first
/// record (BOF) and NumeroRegistros() + 1 past the last (EOF). The connection must outlive the set or be
/// closed first; a set whose connection is gone keeps its rows and refuses writes.
class Recordset {
  public:
    bool Abierto() const;
    int NumeroRegistros() const;
    bool BOF() const;
    bool EOF_() const;

    /// The columns of its rows; none when closed.
    const std::vector<Columna>& Columnas() const;

    int Posicion() const;
    /// Moves to a record; a position out of 1 … NumeroRegistros() changes nothing.
    void MoverA(int posicion);
    void MoverAlPrimero();
    void MoverAlUltimo();
    void MoverAlSiguiente();
    void MoverAlAnterior();

    /// Searches for the first record, from the current one on in a direction, after skipping `saltar`
    /// records, that meets "column=value" (value: a text in single quotes or a number). Not found: stands at
    /// EOF, or at BOF when searching backward. A criterion that its own text breaks moves nothing.
    void Buscar(std::string_view criterio, int saltar, Direccion direccion);

    /// Field of the current record; null when there is no such record or field, or its content does not
    /// fit the column's type.
    Valor Leer(std::string_view campo) const;
    /// The same as a plain value; null and other types read as empty, false or 0.
    std::string Texto(std::string_view campo) const;
    bool Booleano(std::string_view campo) const;
    std::int16_t Entero16(std::string_view campo) const;
    std::int32_t Entero32(std::string_view campo) const;
    double Doble(std::string_view campo) const;
    /// The first day of 1900 when the field is null.
    Fecha LeerFecha(std::string_view campo) const;

    /// Begins a new record; all its fields are null until set.
    void AgregarNuevo();
    /// Sets a field of the new or current record. False when the column's type refuses the value (a number
    /// past the range, a text past the width, not a number): the field then stays as it was and the save
    /// under way is spoilt. Whole numbers and doubles convert to one another, halves to even.
    bool Poner(std::string_view campo, const Valor& valor);
    bool Poner(std::string_view campo, const char* texto);
    /// Writes the fields that were set. False when the engine refused, or when the row no longer holds what
    /// was read of it; the record then stands as it stood, and the save under way is spoilt.
    bool Actualizar();
    void CancelarActualizacion();
    /// Deletes the current record, under the same condition. The set then stands on the one that follows it,
    /// or on the last.
    bool Borrar();

    /// Why the last write that failed did.
    CodigoError Causa() const;

    /// A number that tells its rows from others, whatever their order.
    std::uint64_t Huella() const;

    void Cerrar();

    /// Gives up what all its records hold, in the order of `Columnas`, and is closed then.
    std::vector<std::vector<Valor>> Entregar();

    /// The answer of the last BuscarRegistro.
    bool Encontrado() const;

  private:
    friend void AbrirRecordset(Conexion&, Recordset&, std::string_view);
    friend void AbrirRecordset(Conexion&, Recordset&, std::string_view, const std::string&);
    friend void BuscarRegistro(Recordset&, std::string_view);
    struct Interna;
    std::shared_ptr<Interna> interna_;  // null when closed
    bool encontrado_ = false;
};

/// Opens a table (a bare name) or an SQL text. When it fails the set stays closed; otherwise it stands on its
/// first record, if it has any.
void AbrirRecordset(Conexion& conexion, Recordset& registros, std::string_view fuente);

/// The same of an SQL text in which `texto` stands wherever it says `?1`. It stays prepared: for one that
/// many elements share.
void AbrirRecordset(Conexion& conexion, Recordset& registros, std::string_view fuente,
                    const std::string& texto);

/// Looks for "column=value" from the current record forward and then backward, so that it finds the record
/// wherever it stands. Encontrado is clear only when both ways ended past the records: a criterion that its
/// own text breaks leaves it set on a set that has records.
void BuscarRegistro(Recordset& registros, std::string_view criterio);

}  // namespace trabex::almacen
