#include "helical/salida/EscaleraHJson.h"

#include <tuple>

#include "lote/EscritorJson.h"
#include "store/tablas/CamposEscalera.h"

namespace trabex::helices::salida {

namespace {

using almacen::Campo;
using lote::Escritor;

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

}  // namespace

std::string GeneralesJson(const DatosGenerales& generales) {
    return lote::ObjetoJson(generales, almacen::tablas::CamposGeneralesEscalera);
}

std::string EscaleraHJson(const DatosEscaleraH& escalera, const ResultadosEscaleraH& resultados) {
    return lote::Objeto([&](Escritor& json) {
        lote::EscribirCampos(json, escalera, almacen::tablas::CamposListaH);
        lote::EscribirCampos(json, escalera, almacen::tablas::CamposEscaleraH);
        lote::EscribirCampos(json, resultados, CamposResultadosH);
        json.Key("TramoSuperior");
        lote::EscribirArreglo(json, resultados.TramoSuperior, CamposEstacionH, 1, resultados.NEst);
        json.Key("TramoInferior");
        lote::EscribirArreglo(json, resultados.TramoInferior, CamposEstacionH, 1, resultados.NEst);
        lote::EscribirError(json, resultados.Error);
    });
}

}  // namespace trabex::helices::salida
