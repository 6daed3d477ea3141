#include "loads/salida/AnalisisCargaJson.h"

#include "lote/EscritorJson.h"
#include "store/tablas/CamposCargas.h"

namespace trabex::cargas::salida {

std::string AnalisisCargaJson(const AnalisisCarga& analisis) {
    return lote::Objeto([&](lote::Escritor& json) {
        lote::EscribirCampos(json, analisis, almacen::tablas::CamposAnalisis);
        json.Key("Permanentes");
        lote::EscribirArreglo(json, analisis.Permanentes, almacen::tablas::CamposPeso, 0);
        json.Key("Variable");
        json.StartObject();
        lote::EscribirCampos(json, analisis.Variable, almacen::tablas::CamposPeso);
        json.EndObject();
    });
}

}  // namespace trabex::cargas::salida
