#include "slab/salida/LosasJson.h"

#include <tuple>

#include "lote/EscritorJson.h"
#include "store/tablas/CamposLosa.h"

namespace trabex::losas::salida {

namespace {

using almacen::Campo;
using lote::Escritor;

constexpr std::tuple CamposEstadoJunta{Campo{"Eje", &EstadoJunta::Eje}, Campo{"x", &EstadoJunta::x},
                                       Campo{"y", &EstadoJunta::y},     Campo{"DX", &EstadoJunta::DX},
                                       Campo{"DY", &EstadoJunta::DY},   Campo{"Giro", &EstadoJunta::Giro},
                                       Campo{"RV", &EstadoJunta::RV},   Campo{"RH", &EstadoJunta::RH}};

constexpr std::tuple CamposEsfuerzos{
    Campo{"MomentoA", &EsfuerzosTramo::MomentoA}, Campo{"CorteA", &EsfuerzosTramo::CorteA},
    Campo{"AxialA", &EsfuerzosTramo::AxialA},     Campo{"MomentoB", &EsfuerzosTramo::MomentoB},
    Campo{"CorteB", &EsfuerzosTramo::CorteB},     Campo{"AxialB", &EsfuerzosTramo::AxialB}};

constexpr std::tuple CamposDisenoEje{Campo{"AS1", &DisenoDeEje::AS1},   Campo{"AS2", &DisenoDeEje::AS2},
                                     Campo{"MczI", &DisenoDeEje::MczI}, Campo{"MczD", &DisenoDeEje::MczD},
                                     Campo{"PtoI", &DisenoDeEje::PtoI}, Campo{"PtoD", &DisenoDeEje::PtoD}};

constexpr std::tuple CamposDisenoTramo{Campo{"MT", &DisenoDeTramo::MT}, Campo{"x", &DisenoDeTramo::x},
                                       Campo{"AS1", &DisenoDeTramo::AS1}, Campo{"AS2", &DisenoDeTramo::AS2}};

constexpr std::tuple CamposMaximos{Campo{"MaxMomentoApoyo", &ResultadosLosa::MaxMomentoApoyo},
                                   Campo{"MaxCorte", &ResultadosLosa::MaxCorte},
                                   Campo{"MaxMomentoTramo", &ResultadosLosa::MaxMomentoTramo}};

template <class PorCaso, class Campos>
void EscribirPorCaso(Escritor& json, const PorCaso& porCaso, const Campos& campos) {
    json.StartArray();
    for (const std::size_t caso : {CasoPermanente, CasoVariable})
        lote::EscribirArreglo(json, porCaso[caso], campos);
    json.EndArray();
}

}  // namespace

std::string GeneralesJson(const DatosGenerales& generales) {
    return lote::ObjetoJson(generales, almacen::tablas::CamposGeneralesLosa);
}

std::string LosaJson(const Losa& losa, const ResultadosLosa& resultados, const Avisos& avisos) {
    return lote::Objeto([&](Escritor& json) {
        json.Key("Nombre");
        lote::Escribir(json, losa.Nombre);
        lote::EscribirCampos(json, losa, almacen::tablas::CamposSeccion);
        json.Key("Tramos");
        lote::EscribirArreglo(json, losa.Tramos, almacen::tablas::CamposTramo);
        json.Key("Ejes");
        lote::EscribirArreglo(json, losa.Ejes, almacen::tablas::CamposEje);
        json.Key("JuntasD");
        lote::EscribirArreglo(json, losa.JuntasD, almacen::tablas::CamposJuntaD);
        json.Key("ResultadoJunta");
        EscribirPorCaso(json, resultados.ResultadoJunta, CamposEstadoJunta);
        json.Key("ResultadoTramo");
        EscribirPorCaso(json, resultados.ResultadoTramo, CamposEsfuerzos);
        json.Key("DisenoEje");
        lote::EscribirArreglo(json, resultados.DisenoEje, CamposDisenoEje);
        json.Key("DisenoTramo");
        lote::EscribirArreglo(json, resultados.DisenoTramo, CamposDisenoTramo);
        lote::EscribirCampos(json, resultados, CamposMaximos);
        lote::EscribirError(json, resultados.Error);
        lote::EscribirAvisos(json, avisos);
    });
}

}  // namespace trabex::losas::salida
