#include "helical/salida/EscaleraHJson.h"

#include <tuple>

#include "helical/CalcularEscaleraH.h"
#include "helical/EstacionesHelice.h"
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

std::string EscaleraHJson(const DatosEscaleraH& escalera, const ResultadosEscaleraH& resultados,
                          const Avisos& avisos) {
    return lote::Objeto([&](Escritor& json) {
        lote::EscribirCampos(json, escalera, almacen::tablas::CamposListaH);
        lote::EscribirCampos(json, escalera, almacen::tablas::CamposEscaleraH);
        lote::EscribirCampos(json, resultados, CamposResultadosH);
        json.Key("EmpujeEstatico");
        lote::Escribir(json, EmpujeEstatico(escalera, resultados));
        json.Key("TramoSuperior");
        lote::EscribirEstaciones(json, resultados.TramoSuperior, CamposEstacionH, 1, resultados.NEst,
                                 "Angulo",
                                 [&](std::size_t i) { return EstacionesDe(escalera).GradosSuperior(i); });
        json.Key("TramoInferior");
        lote::EscribirEstaciones(json, resultados.TramoInferior, CamposEstacionH, 1, resultados.NEst,
                                 "Angulo",
                                 [&](std::size_t i) { return EstacionesDe(escalera).GradosInferior(i); });
        lote::EscribirAvisos(json, avisos);
        lote::EscribirError(json, resultados.Error);
    });
}

}  // namespace trabex::helices::salida
