#include "lote/EscritorJson.h"

#include <cmath>

#include "base/Formatos.h"
#include "base/Texto.h"

namespace trabex::lote {

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

void EscribirAvisos(Escritor& json, const Avisos& avisos) {
    json.Key("avisos");
    json.StartArray();
    for (const Aviso& aviso : avisos) {
        json.StartObject();
        json.Key("gravedad");
        Escribir(json, std::string(NombreDe(aviso.Peso)));
        json.Key("lugar");
        Escribir(json, aviso.Lugar);
        json.Key("texto");
        Escribir(json, aviso.Texto);
        json.EndObject();
    }
    json.EndArray();
}

void EscribirError(Escritor& json, const std::optional<ErrorEjecucion>& error) {
    if (!error) return;
    json.Key("error");
    json.StartObject();
    json.Key("codigo");
    json.Int(error->Codigo());
    json.Key("texto");
    Escribir(json, error->Texto());
    json.EndObject();
}

}  // namespace trabex::lote
