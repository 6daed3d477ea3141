#include "store/Insercion.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "store/Columna.h"
#include "store/Conexion.h"
#include "store/Dialecto.h"
#include "store/Ligadura.h"
#include "store/Motor.h"

namespace trabex::almacen {

struct Insercion::Interna {
    std::shared_ptr<Motor> motor;
    std::vector<Columna> columnas;
    std::vector<Valor> fila;
    std::size_t siguiente = 0;  // column, of those that are set in turn
    SentenciaSqlite sentencia{nullptr, sqlite3_finalize};
};

namespace {

std::vector<Columna> ColumnasDe(Motor& motor, std::string_view tabla) {
    std::vector<Columna> columnas;
    const SentenciaSqlite sentencia = motor.Preparar("SELECT * FROM " + Identificador(tabla));
    if (!sentencia) return columnas;
    for (int i = 0; i < sqlite3_column_count(sentencia.get()); ++i) {
        const char* tipo = sqlite3_column_decltype(sentencia.get(), i);
        columnas.push_back(
            LeerDeclaracion(sqlite3_column_name(sentencia.get(), i), tipo != nullptr ? tipo : ""));
    }
    return columnas;
}

}  // namespace

Insercion::Insercion(Conexion& conexion, std::string_view tabla) {
    if (!conexion.Abierta()) return;
    auto interna = std::make_unique<Interna>();
    interna->motor = conexion.motor();
    interna->columnas = ColumnasDe(*interna->motor, tabla);
    if (interna->columnas.empty()) return;
    std::string marcas = "?";
    for (std::size_t i = 1; i < interna->columnas.size(); ++i) marcas += ", ?";
    interna->sentencia =
        interna->motor->Preparar("INSERT INTO " + Identificador(tabla) + " VALUES (" + marcas + ")");
    interna->fila.resize(interna->columnas.size());
    if (interna->sentencia) interna_ = std::move(interna);
}

Insercion::~Insercion() = default;

bool Insercion::Poner(std::string_view campo, const Valor& valor) {
    if (!interna_) return false;
    const std::size_t columnas = interna_->columnas.size();
    for (std::size_t k = 0; k < columnas; ++k) {
        const std::size_t i = (interna_->siguiente + k) % columnas;
        if (interna_->columnas[i].Nombre != campo) continue;
        interna_->siguiente = i + 1;
        std::optional<Valor> admitido = Admitir(interna_->columnas[i], valor);
        const bool puesto = admitido.has_value();
        interna_->fila[i] = puesto ? std::move(*admitido) : Valor{};
        return puesto;
    }
    return false;
}

bool Insercion::Agregar() {
    if (!interna_) return false;
    for (std::size_t i = 0; i < interna_->fila.size(); ++i)
        Ligar(interna_->sentencia.get(), static_cast<int>(i) + 1, interna_->fila[i]);
    bool hayFila = false;
    const bool hecho = interna_->motor->Avanzar(interna_->sentencia.get(), hayFila);
    sqlite3_reset(interna_->sentencia.get());
    interna_->fila.assign(interna_->fila.size(), Valor{});
    return hecho;
}

}  // namespace trabex::almacen
