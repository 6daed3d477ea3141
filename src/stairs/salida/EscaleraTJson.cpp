#include "stairs/salida/EscaleraTJson.h"

#include <tuple>

#include "lote/EscritorJson.h"
#include "stairs/CalcularEscaleraT.h"
#include "stairs/EstaticaEscaleraT.h"
#include "store/tablas/CamposEscalera.h"

namespace trabex::escaleras::salida {

namespace {

using almacen::Campo;
using lote::Escritor;

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

}  // namespace

std::string GeneralesJson(const DatosGenerales& generales) {
    return lote::ObjetoJson(generales, almacen::tablas::CamposGeneralesEscalera);
}

std::string EscaleraTJson(const DatosEscaleraT& escalera, const ResultadosEscaleraT& resultados,
                          const Avisos& avisos) {
    return lote::Objeto([&](Escritor& json) {
        lote::EscribirCampos(json, escalera, almacen::tablas::CamposListaT);
        lote::EscribirCampos(json, escalera, almacen::tablas::CamposEscaleraT);
        lote::EscribirCampos(json, resultados.Estatica, CamposEstatica);
        json.Key("TramoT");
        lote::EscribirEstaciones(json, resultados.TramoT, CamposTramoT, 0, UltimaEstacion, "X",
                                 [&](std::size_t i) { return XDeEstacion(escalera, i); });
        json.Key("DescansoT");
        lote::EscribirEstaciones(json, resultados.DescansoT, CamposDescansoT, 1, UltimoDescanso, "Angulo",
                                 GradosDeDescanso);
        lote::EscribirCampos(json, resultados, CamposReacciones);
        json.Key("EmpujeEstatico");
        lote::Escribir(json, EmpujeEstatico(resultados));
        lote::EscribirAvisos(json, avisos);
        lote::EscribirError(json, resultados.Error);
    });
}

}  // namespace trabex::escaleras::salida
