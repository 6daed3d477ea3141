#include "lote/ResultadosJson.h"

#include <tuple>

#include "lote/EscritorJson.h"

namespace trabex::lote {

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

constexpr std::tuple CamposLosa{
    Campo{"Nombre", &losas::Losa::Nombre}, Campo{"OpcionMaciza", &losas::Losa::OpcionMaciza},
    Campo{"Bo", &losas::Losa::Bo},         Campo{"Ho", &losas::Losa::Ho},
    Campo{"So", &losas::Losa::So},         Campo{"Bm", &losas::Losa::Bm},
    Campo{"Hm", &losas::Losa::Hm},         Campo{"Loseta", &losas::Losa::Loseta}};

constexpr std::tuple CamposTramo{Campo{"LT", &losas::Tramo::LT}, Campo{"Wp", &losas::Tramo::Wp},
                                 Campo{"WV", &losas::Tramo::WV}, Campo{"p1", &losas::Tramo::p1},
                                 Campo{"L1", &losas::Tramo::L1}};

constexpr std::tuple CamposEje{Campo{"Eje", &losas::EjeLosa::Eje}, Campo{"Tipo", &losas::EjeLosa::Tipo},
                               Campo{"Lizq", &losas::EjeLosa::Lizq}, Campo{"Lder", &losas::EjeLosa::Lder},
                               Campo{"HV", &losas::EjeLosa::HV}};

constexpr std::tuple CamposJuntaD{Campo{"Junta", &losas::JuntaD::Junta}, Campo{"x", &losas::JuntaD::x},
                                  Campo{"y", &losas::JuntaD::y}};

constexpr std::tuple CamposEstadoJunta{
    Campo{"Eje", &losas::EstadoJunta::Eje}, Campo{"x", &losas::EstadoJunta::x},
    Campo{"y", &losas::EstadoJunta::y},     Campo{"DX", &losas::EstadoJunta::DX},
    Campo{"DY", &losas::EstadoJunta::DY},   Campo{"Giro", &losas::EstadoJunta::Giro},
    Campo{"RV", &losas::EstadoJunta::RV},   Campo{"RH", &losas::EstadoJunta::RH}};

constexpr std::tuple CamposEsfuerzos{
    Campo{"MomentoA", &losas::EsfuerzosTramo::MomentoA}, Campo{"CorteA", &losas::EsfuerzosTramo::CorteA},
    Campo{"AxialA", &losas::EsfuerzosTramo::AxialA},     Campo{"MomentoB", &losas::EsfuerzosTramo::MomentoB},
    Campo{"CorteB", &losas::EsfuerzosTramo::CorteB},     Campo{"AxialB", &losas::EsfuerzosTramo::AxialB}};

constexpr std::tuple CamposDisenoEje{
    Campo{"AS1", &losas::DisenoDeEje::AS1},   Campo{"AS2", &losas::DisenoDeEje::AS2},
    Campo{"MczI", &losas::DisenoDeEje::MczI}, Campo{"MczD", &losas::DisenoDeEje::MczD},
    Campo{"PtoI", &losas::DisenoDeEje::PtoI}, Campo{"PtoD", &losas::DisenoDeEje::PtoD}};

constexpr std::tuple CamposDisenoTramo{
    Campo{"MT", &losas::DisenoDeTramo::MT}, Campo{"x", &losas::DisenoDeTramo::x},
    Campo{"AS1", &losas::DisenoDeTramo::AS1}, Campo{"AS2", &losas::DisenoDeTramo::AS2}};

constexpr std::tuple CamposMaximos{Campo{"MaxMomentoApoyo", &losas::ResultadosLosa::MaxMomentoApoyo},
                                   Campo{"MaxCorte", &losas::ResultadosLosa::MaxCorte},
                                   Campo{"MaxMomentoTramo", &losas::ResultadosLosa::MaxMomentoTramo}};

template <class PorCaso, class Campos>
void EscribirPorCaso(Escritor& json, const PorCaso& porCaso, const Campos& campos) {
    json.StartArray();
    for (const std::size_t caso : {losas::CasoPermanente, losas::CasoVariable})
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

std::string LosaJson(const losas::Losa& losa, const losas::ResultadosLosa& resultados) {
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

}  // namespace trabex::lote
