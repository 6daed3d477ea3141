#include "helical/salida/EscaleraHJson.h"

#include <tuple>

#include "helical/CalcularEscaleraH.h"
#include "helical/EstacionesHelice.h"
#include "helical/salida/CamposResultadosH.h"
#include "lote/EscritorJson.h"
#include "store/tablas/CamposEscalera.h"

namespace trabex::helices::salida {

namespace {

using almacen::Campo;
using lote::Escritor;

constexpr std::tuple CamposHiperestaticas{Campo{"X", &ResultadosEscaleraH::X},
                                          Campo{"Y", &ResultadosEscaleraH::Y}};

}  // namespace

std::string GeneralesJson(const DatosGenerales& generales) {
    return lote::ObjetoJson(generales, almacen::tablas::CamposGeneralesEscalera);
}

std::string EscaleraHJson(const DatosEscaleraH& escalera, const ResultadosEscaleraH& resultados,
                          const Avisos& avisos) {
    return lote::Objeto([&](Escritor& json) {
        lote::EscribirCampos(json, escalera, almacen::tablas::CamposListaH);
        lote::EscribirCampos(json, escalera, almacen::tablas::CamposEscaleraH);
        lote::EscribirCampos(json, resultados, CamposDelConjuntoH);
        lote::EscribirCampos(json, resultados, CamposHiperestaticas);
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
