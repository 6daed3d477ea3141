#include "lote/EscalerasJson.h"

#include <tuple>

#include "lote/EscritorJson.h"

namespace trabex {

namespace {

constexpr std::tuple CamposGenerales{
    Campo{"FC", &DatosGenerales::FC},           Campo{"FY", &DatosGenerales::FY},
    Campo{"D8", &DatosGenerales::D8},           Campo{"FiMomento", &DatosGenerales::FiMomento},
    Campo{"FiCorte", &DatosGenerales::FiCorte}, Campo{"FS", &DatosGenerales::FS}};

constexpr std::tuple CamposEscaleraT{
    Campo{"Nombre", &DatosEscaleraT::Nombre}, Campo{"Titulo", &DatosEscaleraT::Titulo},
    Campo{"L", &DatosEscaleraT::L},           Campo{"B", &DatosEscaleraT::B},
    Campo{"H", &DatosEscaleraT::H},           Campo{"HT", &DatosEscaleraT::HT},
    Campo{"Hd", &DatosEscaleraT::Hd},         Campo{"WT", &DatosEscaleraT::WT},
    Campo{"Wd", &DatosEscaleraT::Wd},         Campo{"WpD", &DatosEscaleraT::WpD}};

constexpr std::tuple CamposEstatica{
    Campo{"Alfa", &EstaticaEscaleraT::Alfa},
    Campo{"Denominador", &EstaticaEscaleraT::Denominador},
    Campo{"CoefMomento", &EstaticaEscaleraT::CoefMomento},
    Campo{"CoefLateral", &EstaticaEscaleraT::CoefLateral},
    Campo{"CoefDescanso", &EstaticaEscaleraT::CoefDescanso},
    Campo{"CoefLateralDescanso", &EstaticaEscaleraT::CoefLateralDescanso},
    Campo{"MomentoApoyoTotal", &EstaticaEscaleraT::MomentoApoyoTotal},
    Campo{"MomentoHorizontal", &EstaticaEscaleraT::MomentoHorizontal},
    Campo{"MomentoApoyoPermanente", &EstaticaEscaleraT::MomentoApoyoPermanente},
    Campo{"EmpujeFlexion", &EstaticaEscaleraT::EmpujeFlexion}};

constexpr std::tuple CamposTramoT{Campo{"MomentoTotal", &EscaleraTramoPunto::MomentoTotal},
                                  Campo{"MomentoPermanente", &EscaleraTramoPunto::MomentoPermanente},
                                  Campo{"CorteTotal", &EscaleraTramoPunto::CorteTotal},
                                  Campo{"CortePermanente", &EscaleraTramoPunto::CortePermanente},
                                  Campo{"Axial", &EscaleraTramoPunto::Axial},
                                  Campo{"MomentoY", &EscaleraTramoPunto::MomentoY},
                                  Campo{"Torsor", &EscaleraTramoPunto::Torsor},
                                  Campo{"EnvolventeNegativa", &EscaleraTramoPunto::EnvolventeNegativa},
                                  Campo{"EnvolventePositiva", &EscaleraTramoPunto::EnvolventePositiva},
                                  Campo{"AsSuperior", &EscaleraTramoPunto::AsSuperior},
                                  Campo{"AsInferior", &EscaleraTramoPunto::AsInferior},
                                  Campo{"AsTorsion", &EscaleraTramoPunto::AsTorsion},
                                  Campo{"AsY", &EscaleraTramoPunto::AsY},
                                  Campo{"CorteEnvolvente", &EscaleraTramoPunto::CorteEnvolvente},
                                  Campo{"SeparacionEstribo", &EscaleraTramoPunto::SeparacionEstribo},
                                  Campo{"AreaEstribo", &EscaleraTramoPunto::AreaEstribo}};

constexpr std::tuple CamposDescansoT{Campo{"MomentoTotal", &EscaleraDescansoPunto::MomentoTotal},
                                     Campo{"CorteTotal", &EscaleraDescansoPunto::CorteTotal},
                                     Campo{"MomentoPermanente", &EscaleraDescansoPunto::MomentoPermanente},
                                     Campo{"CortePermanente", &EscaleraDescansoPunto::CortePermanente},
                                     Campo{"CorteY", &EscaleraDescansoPunto::CorteY},
                                     Campo{"Axial", &EscaleraDescansoPunto::Axial},
                                     Campo{"MomentoY", &EscaleraDescansoPunto::MomentoY},
                                     Campo{"Torsor", &EscaleraDescansoPunto::Torsor},
                                     Campo{"AsSuperior", &EscaleraDescansoPunto::AsSuperior},
                                     Campo{"AsInferior", &EscaleraDescansoPunto::AsInferior},
                                     Campo{"AsY", &EscaleraDescansoPunto::AsY},
                                     Campo{"TensionCorte", &EscaleraDescansoPunto::TensionCorte},
                                     Campo{"TensionAdmisible", &EscaleraDescansoPunto::TensionAdmisible},
                                     Campo{"FallaCorte", &EscaleraDescansoPunto::FallaCorte}};

constexpr std::tuple CamposReacciones{Campo{"ReaccionVertical", &ResultadosEscaleraT::ReaccionVertical},
                                      Campo{"ReaccionHorizontal", &ResultadosEscaleraT::ReaccionHorizontal}};

constexpr std::tuple CamposEscaleraH{
    Campo{"Nombre", &DatosEscaleraH::Nombre}, Campo{"Titulo", &DatosEscaleraH::Titulo},
    Campo{"B", &DatosEscaleraH::B},           Campo{"T", &DatosEscaleraH::T},
    Campo{"H", &DatosEscaleraH::H},           Campo{"R", &DatosEscaleraH::R},
    Campo{"Angulo", &DatosEscaleraH::Angulo}, Campo{"W", &DatosEscaleraH::W},
    Campo{"Inter", &DatosEscaleraH::Inter}};

constexpr std::tuple CamposResultadosH{
    Campo{"L", &ResultadosEscaleraH::L},   Campo{"Alfa", &ResultadosEscaleraH::Alfa},
    Campo{"FV", &ResultadosEscaleraH::FV}, Campo{"Fh", &ResultadosEscaleraH::Fh},
    Campo{"X", &ResultadosEscaleraH::X},   Campo{"Y", &ResultadosEscaleraH::Y}};

constexpr std::tuple CamposEstacionH{
    Campo{"N", &EstacionEscaleraH::N},       Campo{"QX", &EstacionEscaleraH::QX},
    Campo{"QY", &EstacionEscaleraH::QY},     Campo{"MT", &EstacionEscaleraH::MT},
    Campo{"MX", &EstacionEscaleraH::MX},     Campo{"MY", &EstacionEscaleraH::MY},
    Campo{"MS1", &EstacionEscaleraH::MS1},   Campo{"MI1", &EstacionEscaleraH::MI1},
    Campo{"TU", &EstacionEscaleraH::TU},     Campo{"ASXS", &EstacionEscaleraH::ASXS},
    Campo{"ASXI", &EstacionEscaleraH::ASXI}, Campo{"AsY", &EstacionEscaleraH::AsY},
    Campo{"AsT", &EstacionEscaleraH::AsT},   Campo{"LON", &EstacionEscaleraH::LON},
    Campo{"SEP", &EstacionEscaleraH::SEP},   Campo{"ASMin", &EstacionEscaleraH::ASMin}};

constexpr std::tuple CamposPano{Campo{"Carga", &PanoMarcus::Carga}, Campo{"Caso", &PanoMarcus::Caso},
                                Campo{"LX", &PanoMarcus::LX}, Campo{"LY", &PanoMarcus::LY}};

constexpr std::tuple CamposReparto{Campo{"CX", &RepartoMarcus::CX}, Campo{"CY", &RepartoMarcus::CY},
                                   Campo{"WX", &RepartoMarcus::WX}, Campo{"WY", &RepartoMarcus::WY}};

/// One object, closed by an error where there is one.
template <class Contenido>
std::string Objeto(const std::optional<ErrorEjecucion>& error, Contenido escribir) {
    rapidjson::StringBuffer texto;
    Escritor json(texto);
    json.StartObject();
    escribir(json);
    if (error) EscribirError(json, *error);
    json.EndObject();
    return {texto.GetString(), texto.GetSize()};
}

}  // namespace

std::string GeneralesEscaleraJson(const DatosGenerales& generales) {
    return ObjetoJson(generales, CamposGenerales);
}

std::string EscaleraTJson(const DatosEscaleraT& escalera, const ResultadosEscaleraT& resultados) {
    return Objeto(resultados.Error, [&](Escritor& json) {
        EscribirCampos(json, escalera, CamposEscaleraT);
        EscribirCampos(json, resultados.Estatica, CamposEstatica);
        json.Key("TramoT");
        EscribirArreglo(json, resultados.TramoT, CamposTramoT, 0);
        json.Key("DescansoT");
        EscribirArreglo(json, resultados.DescansoT, CamposDescansoT);
        EscribirCampos(json, resultados, CamposReacciones);
    });
}

std::string EscaleraHJson(const DatosEscaleraH& escalera, const ResultadosEscaleraH& resultados) {
    return Objeto(resultados.Error, [&](Escritor& json) {
        EscribirCampos(json, escalera, CamposEscaleraH);
        EscribirCampos(json, resultados, CamposResultadosH);
        json.Key("TramoSuperior");
        EscribirArreglo(json, resultados.TramoSuperior, CamposEstacionH, 1, resultados.NEst);
        json.Key("TramoInferior");
        EscribirArreglo(json, resultados.TramoInferior, CamposEstacionH, 1, resultados.NEst);
    });
}

std::string MarcusJson(const NivelMarcus& nivel, const std::optional<ErrorEjecucion>& error) {
    return Objeto(error, [&](Escritor& json) {
        json.Key("Nombre");
        Escribir(json, nivel.Nombre);
        json.Key("Paños");
        Escribir(json, nivel.Panos);
        json.Key("Filas");
        json.StartArray();
        for (const PanoMarcus& pano : nivel.Filas) {
            json.StartObject();
            EscribirCampos(json, pano, CamposPano);
            EscribirCampos(json, pano.Reparto, CamposReparto);
            json.EndObject();
        }
        json.EndArray();
    });
}

}  // namespace trabex
