#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "store/Conexion.h"
#include "store/Valor.h"

namespace trabex::documento {

/// The rows of a table of the scratch database, read whole, save its pictures: those are read one at a time.
/// Names of columns are found without regard to case, and texts are made printable.
class TablaDeDatos {
  public:
    /// Nothing when the database has no such table, or the table no such column to order by.
    static std::unique_ptr<TablaDeDatos> Leer(almacen::Conexion& conexion, const std::string& nombre,
                                              const std::string& orden);

    const std::string& Nombre() const { return nombre_; }
    std::size_t NumeroFilas() const { return filas_.size(); }
    std::optional<std::size_t> Columna(std::string_view nombre) const;
    const almacen::Valor& Leer(std::size_t fila, std::size_t columna) const {
        return filas_[fila][columna + 1];
    }
    /// Numbers of the rows whose column equals a value, in order.
    const std::vector<std::size_t>& Donde(std::size_t columna, const almacen::Valor& valor) const;
    /// Numbers of all rows, in order.
    const std::vector<std::size_t>& Todas() const { return todas_; }

    bool EsImagen(std::string_view columna) const;
    /// The picture of a row; where the table keeps it compressed beside, in a column of the same name and
    /// "Png", that one. Any thread may ask, while nothing else is read from the database.
    almacen::Bytes LeerImagen(std::size_t fila, std::string_view columna) const;
    /// The strokes of that picture, where the table keeps them beside, in a column of the same name and
    /// "Trazos"; else empty.
    almacen::Bytes LeerTrazos(std::size_t fila, std::string_view columna) const;

  private:
    almacen::Bytes LeerJunto(std::size_t fila, const std::string& columna) const;

    using Indice = std::unordered_map<std::string, std::vector<std::size_t>>;

    almacen::Conexion* conexion_ = nullptr;
    std::string nombre_;
    std::vector<std::string> columnas_;
    std::vector<std::string> imagenes_;
    std::vector<std::vector<almacen::Valor>> filas_;  // behind what tells each from the others
    std::vector<std::size_t> todas_;
    mutable std::mutex turno_;                       // of reading pictures
    mutable std::map<std::size_t, Indice> indices_;  // by column, made when first asked for
};

/// The databases that a report reads, each opened once.
class DatosReporte {
  public:
    /// False when there is no database: its report is then empty.
    bool Hay(const std::filesystem::path& ubicacion);
    /// Null when the database has no such table, or the table no such column to order by.
    const TablaDeDatos* Tabla(const std::filesystem::path& ubicacion, const std::string& nombre,
                              const std::string& orden);

  private:
    struct Base {
        almacen::Conexion LaConexion;
        std::map<std::string, std::unique_ptr<TablaDeDatos>> Tablas;  // by name and order
    };
    Base& Abierta(const std::filesystem::path& ubicacion);

    std::map<std::filesystem::path, Base> bases_;
};

}  // namespace trabex::documento
