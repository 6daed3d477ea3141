#include "markus/salida/MarcusJson.h"

#include "lote/EscritorJson.h"
#include "markus/Avisos.h"
#include "store/tablas/CamposMarcus.h"

namespace trabex::marcus::salida {

namespace {

using lote::Escritor;

}  // namespace

std::string MarcusJson(const NivelMarcus& nivel, const std::optional<ErrorEjecucion>& error) {
    return lote::Objeto([&](Escritor& json) {
        lote::EscribirCampos(json, nivel, almacen::tablas::CamposNivel);
        json.Key("Filas");
        json.StartArray();
        for (const PanoMarcus& pano : nivel.Filas) {
            json.StartObject();
            lote::EscribirCampos(json, pano, almacen::tablas::CamposPano);
            lote::EscribirCampos(json, pano.Reparto, almacen::tablas::CamposReparto);
            json.EndObject();
        }
        json.EndArray();
        lote::EscribirAvisos(json, AvisosDe(nivel.Filas));
        lote::EscribirError(json, error);
    });
}

}  // namespace trabex::marcus::salida
