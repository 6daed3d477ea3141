#include "reports/EscritorJson.h"

#include <cmath>

#include "base/Formatos.h"

namespace trabex {

namespace {

/// A text whose bytes are valid UTF-8, as JSON wants it: what is not becomes U+FFFD.
std::string TextoValido(const std::string& texto) {
    std::string salida;
    for (std::size_t i = 0; i < texto.size();) {
        const auto primero = static_cast<unsigned char>(texto[i]);
        const std::size_t largo = primero < 0x80   ? 1
                                  : primero < 0xC2 ? 0
                                  : primero < 0xE0 ? 2
                                  : primero < 0xF0 ? 3
                                  : primero < 0xF5 ? 4
                                                   : 0;
        std::size_t bien = largo == 0 ? 0 : 1;
        while (bien != 0 && bien < largo && i + bien < texto.size() && (texto[i + bien] & 0xC0) == 0x80)
            ++bien;
        const bool valido = largo != 0 && bien == largo;
        salida += valido ? texto.substr(i, largo) : "\xEF\xBF\xBD";
        i += valido ? largo : 1;
    }
    return salida;
}

}  // namespace

void Escribir(Escritor& json, double valor) {
    if (std::isfinite(valor))
        json.Double(valor);
    else
        json.Null();
}
void Escribir(Escritor& json, bool valor) {
    json.Bool(valor);
}
void Escribir(Escritor& json, std::int16_t valor) {
    json.Int(valor);
}
void Escribir(Escritor& json, std::int32_t valor) {
    json.Int(valor);
}
void Escribir(Escritor& json, const std::string& texto) {
    const std::string valido = TextoValido(texto);
    json.String(valido.data(), static_cast<rapidjson::SizeType>(valido.size()));
}
void Escribir(Escritor& json, const Fecha& fecha) {
    Escribir(json, FechaIso(fecha));
}

void EscribirError(Escritor& json, const ErrorEjecucion& error) {
    json.Key("error");
    json.StartObject();
    json.Key("codigo");
    json.Int(error.Codigo());
    json.Key("texto");
    Escribir(json, error.Texto());
    json.EndObject();
}

}  // namespace trabex
