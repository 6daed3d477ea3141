#include "reports/documento/DatosReporte.h"

#include <algorithm>
#include <cctype>
#include <numeric>
#include <utility>

#include "base/Texto.h"
#include "reports/documento/Documento.h"
#include "store/LecturaPorIdentidad.h"

namespace trabex::documento {

namespace {

/// A picture may stand a second time, compressed or as its strokes, in columns of these further names.
constexpr const char* SufijoPng = "Png";
constexpr const char* SufijoTrazos = "Trazos";

bool MismoNombre(std::string_view a, std::string_view b) {
    if (a == b) return true;
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return std::tolower(static_cast<unsigned char>(x)) == std::tolower(static_cast<unsigned char>(y));
    });
}

void HacerImprimible(almacen::Valor& valor) {
    auto* texto = std::get_if<std::string>(&valor);
    if (texto != nullptr && !EsLlano(*texto, {})) *texto = TextoImprimible(*texto);
}

/// A value as a key: equal values, equal keys.
std::string Clave(const almacen::Valor& valor) {
    return std::to_string(valor.index()) + TextoDeValor(valor, {}, {});
}

}  // namespace

std::unique_ptr<TablaDeDatos> TablaDeDatos::Leer(almacen::Conexion& conexion, const std::string& nombre,
                                                 const std::string& orden) {
    const std::vector<almacen::Columna> columnas = almacen::ColumnasDe(conexion, nombre);
    if (columnas.empty()) return nullptr;
    auto tabla = std::make_unique<TablaDeDatos>();
    tabla->conexion_ = &conexion;
    tabla->nombre_ = nombre;
    for (const almacen::Columna& columna : columnas)
        (columna.Tipo == almacen::TipoColumna::Binario ? tabla->imagenes_ : tabla->columnas_)
            .push_back(columna.Nombre);
    if (!orden.empty() && !tabla->Columna(orden)) return nullptr;
    almacen::Recordset registros;
    almacen::AbrirConIdentidad(conexion, registros, nombre, tabla->columnas_, orden);
    tabla->filas_ = registros.Entregar();
    for (std::vector<almacen::Valor>& fila : tabla->filas_)
        for (almacen::Valor& valor : fila) HacerImprimible(valor);
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
        for (std::size_t i = 0; i < filas_.size(); ++i) indice->second[Clave(Leer(i, columna))].push_back(i);
    }
    const auto hallada = indice->second.find(Clave(valor));
    return hallada == indice->second.end() ? ninguna : hallada->second;
}

bool TablaDeDatos::EsImagen(std::string_view columna) const {
    return std::any_of(imagenes_.begin(), imagenes_.end(),
                       [&](const std::string& nombre) { return MismoNombre(nombre, columna); });
}

almacen::Bytes TablaDeDatos::LeerJunto(std::size_t fila, const std::string& columna) const {
    if (!EsImagen(columna)) return {};
    const std::scoped_lock espera(turno_);
    return almacen::LeerBytes(*conexion_, nombre_, columna, TextoDeValor(filas_[fila].front(), {}, {}));
}

almacen::Bytes TablaDeDatos::LeerImagen(std::size_t fila, std::string_view columna) const {
    almacen::Bytes bytes = LeerJunto(fila, std::string(columna) + SufijoPng);
    return bytes.empty() ? LeerJunto(fila, std::string(columna)) : bytes;
}

almacen::Bytes TablaDeDatos::LeerTrazos(std::size_t fila, std::string_view columna) const {
    return LeerJunto(fila, std::string(columna) + SufijoTrazos);
}

DatosReporte::Base& DatosReporte::Abierta(const std::filesystem::path& ubicacion) {
    const auto [base, nueva] = bases_.try_emplace(ubicacion);
    if (nueva) almacen::AbrirBasePropia(base->second.LaConexion, ubicacion);
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
