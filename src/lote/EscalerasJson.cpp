#include "lote/EscalerasJson.h"

#include <tuple>

#include "lote/EscritorJson.h"

namespace trabex::lote {

namespace {

constexpr std::tuple CamposGenerales{
    Campo{"FC", &DatosGenerales::FC},           Campo{"FY", &DatosGenerales::FY},
    Campo{"D8", &DatosGenerales::D8},           Campo{"FiMomento", &DatosGenerales::FiMomento},
    Campo{"FiCorte", &DatosGenerales::FiCorte}, Campo{"FS", &DatosGenerales::FS}};

constexpr std::tuple CamposEscaleraT{
    Campo{"Nombre", &escaleras::DatosEscaleraT::Nombre}, Campo{"Titulo", &escaleras::DatosEscaleraT::Titulo},
    Campo{"L", &escaleras::DatosEscaleraT::L},           Campo{"B", &escaleras::DatosEscaleraT::B},
    Campo{"H", &escaleras::DatosEscaleraT::H},           Campo{"HT", &escaleras::DatosEscaleraT::HT},
    Campo{"Hd", &escaleras::DatosEscaleraT::Hd},         Campo{"WT", &escaleras::DatosEscaleraT::WT},
    Campo{"Wd", &escaleras::DatosEscaleraT::Wd},         Campo{"WpD", &escaleras::DatosEscaleraT::WpD}};

constexpr std::tuple CamposEstatica{
    Campo{"Alfa", &escaleras::EstaticaEscaleraT::Alfa},
    Campo{"Denominador", &escaleras::EstaticaEscaleraT::Denominador},
    Campo{"CoefMomento", &escaleras::EstaticaEscaleraT::CoefMomento},
    Campo{"CoefLateral", &escaleras::EstaticaEscaleraT::CoefLateral},
    Campo{"CoefDescanso", &escaleras::EstaticaEscaleraT::CoefDescanso},
    Campo{"CoefLateralDescanso", &escaleras::EstaticaEscaleraT::CoefLateralDescanso},
    Campo{"MomentoApoyoTotal", &escaleras::EstaticaEscaleraT::MomentoApoyoTotal},
    Campo{"MomentoHorizontal", &escaleras::EstaticaEscaleraT::MomentoHorizontal},
    Campo{"MomentoApoyoPermanente", &escaleras::EstaticaEscaleraT::MomentoApoyoPermanente},
    Campo{"EmpujeFlexion", &escaleras::EstaticaEscaleraT::EmpujeFlexion}};

constexpr std::tuple CamposTramoT{
    Campo{"MomentoTotal", &escaleras::EscaleraTramoPunto::MomentoTotal},
    Campo{"MomentoPermanente", &escaleras::EscaleraTramoPunto::MomentoPermanente},
    Campo{"CorteTotal", &escaleras::EscaleraTramoPunto::CorteTotal},
    Campo{"CortePermanente", &escaleras::EscaleraTramoPunto::CortePermanente},
    Campo{"Axial", &escaleras::EscaleraTramoPunto::Axial},
    Campo{"MomentoY", &escaleras::EscaleraTramoPunto::MomentoY},
    Campo{"Torsor", &escaleras::EscaleraTramoPunto::Torsor},
    Campo{"EnvolventeNegativa", &escaleras::EscaleraTramoPunto::EnvolventeNegativa},
    Campo{"EnvolventePositiva", &escaleras::EscaleraTramoPunto::EnvolventePositiva},
    Campo{"AsSuperior", &escaleras::EscaleraTramoPunto::AsSuperior},
    Campo{"AsInferior", &escaleras::EscaleraTramoPunto::AsInferior},
    Campo{"AsTorsion", &escaleras::EscaleraTramoPunto::AsTorsion},
    Campo{"AsY", &escaleras::EscaleraTramoPunto::AsY},
    Campo{"CorteEnvolvente", &escaleras::EscaleraTramoPunto::CorteEnvolvente},
    Campo{"SeparacionEstribo", &escaleras::EscaleraTramoPunto::SeparacionEstribo},
    Campo{"AreaEstribo", &escaleras::EscaleraTramoPunto::AreaEstribo}};

constexpr std::tuple CamposDescansoT{
    Campo{"MomentoTotal", &escaleras::EscaleraDescansoPunto::MomentoTotal},
    Campo{"CorteTotal", &escaleras::EscaleraDescansoPunto::CorteTotal},
    Campo{"MomentoPermanente", &escaleras::EscaleraDescansoPunto::MomentoPermanente},
    Campo{"CortePermanente", &escaleras::EscaleraDescansoPunto::CortePermanente},
    Campo{"CorteY", &escaleras::EscaleraDescansoPunto::CorteY},
    Campo{"Axial", &escaleras::EscaleraDescansoPunto::Axial},
    Campo{"MomentoY", &escaleras::EscaleraDescansoPunto::MomentoY},
    Campo{"Torsor", &escaleras::EscaleraDescansoPunto::Torsor},
    Campo{"AsSuperior", &escaleras::EscaleraDescansoPunto::AsSuperior},
    Campo{"AsInferior", &escaleras::EscaleraDescansoPunto::AsInferior},
    Campo{"AsY", &escaleras::EscaleraDescansoPunto::AsY},
    Campo{"TensionCorte", &escaleras::EscaleraDescansoPunto::TensionCorte},
    Campo{"TensionAdmisible", &escaleras::EscaleraDescansoPunto::TensionAdmisible},
    Campo{"FallaCorte", &escaleras::EscaleraDescansoPunto::FallaCorte}};

constexpr std::tuple CamposReacciones{
    Campo{"ReaccionVertical", &escaleras::ResultadosEscaleraT::ReaccionVertical},
    Campo{"ReaccionHorizontal", &escaleras::ResultadosEscaleraT::ReaccionHorizontal}};

constexpr std::tuple CamposEscaleraH{
    Campo{"Nombre", &helices::DatosEscaleraH::Nombre}, Campo{"Titulo", &helices::DatosEscaleraH::Titulo},
    Campo{"B", &helices::DatosEscaleraH::B},           Campo{"T", &helices::DatosEscaleraH::T},
    Campo{"H", &helices::DatosEscaleraH::H},           Campo{"R", &helices::DatosEscaleraH::R},
    Campo{"Angulo", &helices::DatosEscaleraH::Angulo}, Campo{"W", &helices::DatosEscaleraH::W},
    Campo{"Inter", &helices::DatosEscaleraH::Inter}};

constexpr std::tuple CamposResultadosH{
    Campo{"L", &helices::ResultadosEscaleraH::L},   Campo{"Alfa", &helices::ResultadosEscaleraH::Alfa},
    Campo{"FV", &helices::ResultadosEscaleraH::FV}, Campo{"Fh", &helices::ResultadosEscaleraH::Fh},
    Campo{"X", &helices::ResultadosEscaleraH::X},   Campo{"Y", &helices::ResultadosEscaleraH::Y}};

constexpr std::tuple CamposEstacionH{
    Campo{"N", &helices::EstacionEscaleraH::N},       Campo{"QX", &helices::EstacionEscaleraH::QX},
    Campo{"QY", &helices::EstacionEscaleraH::QY},     Campo{"MT", &helices::EstacionEscaleraH::MT},
    Campo{"MX", &helices::EstacionEscaleraH::MX},     Campo{"MY", &helices::EstacionEscaleraH::MY},
    Campo{"MS1", &helices::EstacionEscaleraH::MS1},   Campo{"MI1", &helices::EstacionEscaleraH::MI1},
    Campo{"TU", &helices::EstacionEscaleraH::TU},     Campo{"ASXS", &helices::EstacionEscaleraH::ASXS},
    Campo{"ASXI", &helices::EstacionEscaleraH::ASXI}, Campo{"AsY", &helices::EstacionEscaleraH::AsY},
    Campo{"AsT", &helices::EstacionEscaleraH::AsT},   Campo{"LON", &helices::EstacionEscaleraH::LON},
    Campo{"SEP", &helices::EstacionEscaleraH::SEP},   Campo{"ASMin", &helices::EstacionEscaleraH::ASMin}};

constexpr std::tuple CamposPano{Campo{"Carga", &marcus::PanoMarcus::Carga},
                                Campo{"Caso", &marcus::PanoMarcus::Caso},
                                Campo{"LX", &marcus::PanoMarcus::LX}, Campo{"LY", &marcus::PanoMarcus::LY}};

constexpr std::tuple CamposReparto{
    Campo{"CX", &marcus::RepartoMarcus::CX}, Campo{"CY", &marcus::RepartoMarcus::CY},
    Campo{"WX", &marcus::RepartoMarcus::WX}, Campo{"WY", &marcus::RepartoMarcus::WY}};

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

std::string EscaleraTJson(const escaleras::DatosEscaleraT& escalera,
                          const escaleras::ResultadosEscaleraT& resultados) {
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

std::string EscaleraHJson(const helices::DatosEscaleraH& escalera,
                          const helices::ResultadosEscaleraH& resultados) {
    return Objeto(resultados.Error, [&](Escritor& json) {
        EscribirCampos(json, escalera, CamposEscaleraH);
        EscribirCampos(json, resultados, CamposResultadosH);
        json.Key("TramoSuperior");
        EscribirArreglo(json, resultados.TramoSuperior, CamposEstacionH, 1, resultados.NEst);
        json.Key("TramoInferior");
        EscribirArreglo(json, resultados.TramoInferior, CamposEstacionH, 1, resultados.NEst);
    });
}

std::string MarcusJson(const marcus::NivelMarcus& nivel, const std::optional<ErrorEjecucion>& error) {
    return Objeto(error, [&](Escritor& json) {
        json.Key("Nombre");
        Escribir(json, nivel.Nombre);
        json.Key("Paños");
        Escribir(json, nivel.Panos);
        json.Key("Filas");
        json.StartArray();
        for (const marcus::PanoMarcus& pano : nivel.Filas) {
            json.StartObject();
            EscribirCampos(json, pano, CamposPano);
            EscribirCampos(json, pano.Reparto, CamposReparto);
            json.EndObject();
        }
        json.EndArray();
    });
}

}  // namespace trabex::lote
