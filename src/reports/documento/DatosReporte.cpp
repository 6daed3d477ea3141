#include "reports/documento/DatosReporte.h"

#include <algorithm>
#include <cctype>
#include <numeric>
#include <utility>

#include "base/Texto.h"
#include "reports/documento/Documento.h"
#include "store/Dialecto.h"
#include "store/Recordset.h"

namespace trabex::documento {

namespace {

constexpr const char* ColumnaIdentidad = "IdentidadDeFila";

bool MismoNombre(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
    });
}

almacen::Valor Imprimible(almacen::Valor valor) {
    if (auto* texto = std::get_if<std::string>(&valor)) *texto = TextoImprimible(*texto);
    return valor;
}

/// A value as a key: equal values, equal keys.
std::string Clave(const almacen::Valor& valor) {
    return std::to_string(valor.index()) + TextoDeValor(valor, {}, {});
}

}  // namespace

std::unique_ptr<TablaDeDatos> TablaDeDatos::Leer(almacen::Conexion& conexion, const std::string& nombre,
                                                 const std::string& orden) {
    almacen::Recordset registros;
    almacen::AbrirRecordset(conexion, registros, "SELECT * FROM " + nombre + " WHERE 0");
    if (!registros.Abierto()) return nullptr;
    auto tabla = std::make_unique<TablaDeDatos>();
    tabla->conexion_ = &conexion;
    tabla->nombre_ = nombre;
    const std::string calificador = almacen::Identificador(nombre) + ".";
    std::string consulta = "SELECT " + calificador + "rowid AS " + ColumnaIdentidad;
    for (const trabex::almacen::Columna& columna : registros.Columnas()) {
        const bool esImagen = columna.Tipo == almacen::TipoColumna::Binario;
        (esImagen ? tabla->imagenes_ : tabla->columnas_).push_back(columna.Nombre);
        if (!esImagen) consulta += ", " + calificador + almacen::Identificador(columna.Nombre);
    }
    if (!orden.empty() && !tabla->Columna(orden)) return nullptr;
    consulta += " FROM " + almacen::Identificador(nombre) + " ORDER BY ";
    if (!orden.empty()) consulta += calificador + almacen::Identificador(orden) + ", ";
    almacen::AbrirRecordset(conexion, registros, consulta + calificador + "rowid");
    for (int i = 1; i <= registros.NumeroRegistros(); ++i) {
        registros.MoverA(i);
        tabla->identidades_.push_back(TextoDeValor(registros.Leer(ColumnaIdentidad), {}, {}));
        std::vector<almacen::Valor>& fila = tabla->filas_.emplace_back();
        fila.reserve(tabla->columnas_.size());
        for (const std::string& columna : tabla->columnas_)
            fila.push_back(Imprimible(registros.Leer(columna)));
    }
    tabla->todas_.resize(tabla->filas_.size());
    std::iota(tabla->todas_.begin(), tabla->todas_.end(), std::size_t{0});
    return tabla;
}

std::optional<std::size_t> TablaDeDatos::Columna(std::string_view nombre) const {
    for (std::size_t i = 0; i < columnas_.size(); ++i) {
        if (MismoNombre(columnas_[i], nombre)) return i;
    }
    return std::nullopt;
}

const std::vector<std::size_t>& TablaDeDatos::Donde(std::size_t columna, const almacen::Valor& valor) const {
    static const std::vector<std::size_t> ninguna;
    const auto [indice, nuevo] = indices_.try_emplace(columna);
    if (nuevo) {
        for (std::size_t i = 0; i < filas_.size(); ++i)
            indice->second[Clave(filas_[i][columna])].push_back(i);
    }
    const auto hallada = indice->second.find(Clave(valor));
    return hallada == indice->second.end() ? ninguna : hallada->second;
}

bool TablaDeDatos::EsImagen(std::string_view columna) const {
    return std::any_of(imagenes_.begin(), imagenes_.end(),
                       [&](const std::string& nombre) { return MismoNombre(nombre, columna); });
}

almacen::Bytes TablaDeDatos::LeerImagen(std::size_t fila, std::string_view columna) const {
    almacen::Recordset registros;
    almacen::AbrirRecordset(*conexion_, registros,
                            "SELECT " + almacen::Identificador(nombre_) + "." +
                                almacen::Identificador(columna) + " FROM " + almacen::Identificador(nombre_) +
                                " WHERE rowid = " + identidades_[fila]);
    almacen::Valor valor = registros.Leer(columna);
    auto* bytes = std::get_if<almacen::Bytes>(&valor);
    return bytes ? std::move(*bytes) : almacen::Bytes();
}

DatosReporte::Base& DatosReporte::Abierta(const std::filesystem::path& ubicacion) {
    const auto [base, nueva] = bases_.try_emplace(ubicacion);
    if (nueva) almacen::AbrirConexion(base->second.LaConexion, ubicacion);
    return base->second;
}

bool DatosReporte::Hay(const std::filesystem::path& ubicacion) {
    return Abierta(ubicacion).LaConexion.Abierta();
}

const TablaDeDatos* DatosReporte::Tabla(const std::filesystem::path& ubicacion, const std::string& nombre,
                                        const std::string& orden) {
    Base& base = Abierta(ubicacion);
    const auto [tabla, nueva] = base.Tablas.try_emplace(nombre + "|" + orden);
    if (nueva) tabla->second = TablaDeDatos::Leer(base.LaConexion, nombre, orden);
    return tabla->second.get();
}

}  // namespace trabex::documento
