#include "lote/ResultadosJson.h"

#include <tuple>

#include "lote/EscritorJson.h"

namespace trabex {

namespace {

constexpr std::tuple CamposGenerales{
    Campo{"FC", &DatosGenerales::FC},          Campo{"FY", &DatosGenerales::FY},
    Campo{"D8", &DatosGenerales::D8},          Campo{"FCP", &DatosGenerales::FCP},
    Campo{"FCV", &DatosGenerales::FCV},        Campo{"FiMomento", &DatosGenerales::FiMomento},
    Campo{"FiCorte", &DatosGenerales::FiCorte}};

constexpr std::tuple CamposProyecto{
    Campo{"Proyecto", &DatosDelProyecto::Proyecto},     Campo{"Propietario", &DatosDelProyecto::Propietario},
    Campo{"Calculista", &DatosDelProyecto::Calculista}, Campo{"Fecha", &DatosDelProyecto::Fecha},
    Campo{"Cliente", &DatosDelProyecto::Cliente},       Campo{"Comentario", &DatosDelProyecto::Comentario}};

constexpr std::tuple CamposLosa{Campo{"Nombre", &Losa::Nombre}, Campo{"OpcionMaciza", &Losa::OpcionMaciza},
                                Campo{"Bo", &Losa::Bo},         Campo{"Ho", &Losa::Ho},
                                Campo{"So", &Losa::So},         Campo{"Bm", &Losa::Bm},
                                Campo{"Hm", &Losa::Hm},         Campo{"Loseta", &Losa::Loseta}};

constexpr std::tuple CamposTramo{Campo{"LT", &Tramo::LT}, Campo{"Wp", &Tramo::Wp}, Campo{"WV", &Tramo::WV},
                                 Campo{"p1", &Tramo::p1}, Campo{"L1", &Tramo::L1}};

constexpr std::tuple CamposEje{Campo{"Eje", &EjeLosa::Eje}, Campo{"Tipo", &EjeLosa::Tipo},
                               Campo{"Lizq", &EjeLosa::Lizq}, Campo{"Lder", &EjeLosa::Lder},
                               Campo{"HV", &EjeLosa::HV}};

constexpr std::tuple CamposJuntaD{Campo{"Junta", &JuntaD::Junta}, Campo{"x", &JuntaD::x},
                                  Campo{"y", &JuntaD::y}};

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
        EscribirArreglo(json, porCaso[caso], campos);
    json.EndArray();
}

}  // namespace

std::string ProyectoJson(const DatosDelProyecto& datos) {
    return ObjetoJson(datos, CamposProyecto);
}

std::string GeneralesJson(const DatosGenerales& generales) {
    return ObjetoJson(generales, CamposGenerales);
}

std::string LosaJson(const Losa& losa, const ResultadosLosa& resultados) {
    rapidjson::StringBuffer texto;
    Escritor json(texto);
    json.StartObject();
    EscribirCampos(json, losa, CamposLosa);
    json.Key("Tramos");
    EscribirArreglo(json, losa.Tramos, CamposTramo);
    json.Key("Ejes");
    EscribirArreglo(json, losa.Ejes, CamposEje);
    json.Key("JuntasD");
    EscribirArreglo(json, losa.JuntasD, CamposJuntaD);
    json.Key("ResultadoJunta");
    EscribirPorCaso(json, resultados.ResultadoJunta, CamposEstadoJunta);
    json.Key("ResultadoTramo");
    EscribirPorCaso(json, resultados.ResultadoTramo, CamposEsfuerzos);
    json.Key("DisenoEje");
    EscribirArreglo(json, resultados.DisenoEje, CamposDisenoEje);
    json.Key("DisenoTramo");
    EscribirArreglo(json, resultados.DisenoTramo, CamposDisenoTramo);
    EscribirCampos(json, resultados, CamposMaximos);
    if (resultados.Error) EscribirError(json, *resultados.Error);
    json.EndObject();
    return {texto.GetString(), texto.GetSize()};
}

}  // namespace trabex
