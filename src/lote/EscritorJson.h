#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include "base/Aviso.h"
#include "base/ErrorEjecucion.h"
#include "base/Fecha.h"
#include "store/Campos.h"

// How records become JSON objects: a tuple of their fields and names, written in order.

namespace trabex::lote {

using Escritor = rapidjson::Writer<rapidjson::StringBuffer>;

/// A value: a number that is none is null, a text is made valid UTF-8, a date is ISO 8601.
void Escribir(Escritor& json, double valor);
void Escribir(Escritor& json, bool valor);
void Escribir(Escritor& json, std::int16_t valor);
void Escribir(Escritor& json, std::int32_t valor);
void Escribir(Escritor& json, const std::string& texto);
void Escribir(Escritor& json, const Fecha& fecha);

/// The key `error` with its code and its text, where there is one.
void EscribirError(Escritor& json, const std::optional<ErrorEjecucion>& error);

/// The key `avisos`, an array of weight, place and text; empty when there is nothing to tell.
void EscribirAvisos(Escritor& json, const Avisos& avisos);

template <class Registro, class Campos>
void EscribirCampos(Escritor& json, const Registro& registro, const Campos& campos) {
    std::apply(
        [&](const auto&... campo) {
            ((json.Key(campo.Nombre), Escribir(json, registro.*(campo.Dato))), ...);
        },
        campos);
}

/// The records of slots `desde` to `hasta`, both included, as far as there are any.
template <class Registro, class Campos>
void EscribirArreglo(Escritor& json, const std::vector<Registro>& arreglo, const Campos& campos,
                     std::size_t desde = 1, std::size_t hasta = std::numeric_limits<std::size_t>::max()) {
    json.StartArray();
    for (std::size_t i = desde; i < arreglo.size() && i <= hasta; ++i) {
        json.StartObject();
        EscribirCampos(json, arreglo[i], campos);
        json.EndObject();
    }
    json.EndArray();
}

/// Stations in slots `desde` to `hasta`, as EscribirArreglo writes them, each with the place where it stands
/// under the key `clave`, `lugar(slot)`, before its fields.
template <class Registro, class Campos, class Lugar>
void EscribirEstaciones(Escritor& json, const std::vector<Registro>& arreglo, const Campos& campos,
                        std::size_t desde, std::size_t hasta, const char* clave, Lugar lugar) {
    json.StartArray();
    for (std::size_t i = desde; i < arreglo.size() && i <= hasta; ++i) {
        json.StartObject();
        json.Key(clave);
        Escribir(json, lugar(i));
        EscribirCampos(json, arreglo[i], campos);
        json.EndObject();
    }
    json.EndArray();
}

/// One object, whose members `escribir(json)` writes.
template <class Contenido>
std::string Objeto(Contenido escribir) {
    rapidjson::StringBuffer texto;
    Escritor json(texto);
    json.StartObject();
    escribir(json);
    json.EndObject();
    return {texto.GetString(), texto.GetSize()};
}

template <class Registro, class Campos>
std::string ObjetoJson(const Registro& registro, const Campos& campos) {
    return Objeto([&](Escritor& json) { EscribirCampos(json, registro, campos); });
}

}  // namespace trabex::lote
