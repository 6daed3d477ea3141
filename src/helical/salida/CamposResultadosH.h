#pragma once

#include <tuple>

#include "helical/ResultadosEscaleraH.h"
#include "store/Campos.h"

namespace trabex::helices::salida {

/// What is calculated of a helical stair as a whole, and of a station: columns of the scratch tables
/// `EscaleraH` and `EscaleraHS`, and keys of the JSON.
inline constexpr std::tuple CamposDelConjuntoH{
    almacen::Campo{"L", &ResultadosEscaleraH::L}, almacen::Campo{"Alfa", &ResultadosEscaleraH::Alfa},
    almacen::Campo{"FV", &ResultadosEscaleraH::FV}, almacen::Campo{"Fh", &ResultadosEscaleraH::Fh}};

inline constexpr std::tuple CamposEstacionH{
    almacen::Campo{"N", &EstacionEscaleraH::N},       almacen::Campo{"QX", &EstacionEscaleraH::QX},
    almacen::Campo{"QY", &EstacionEscaleraH::QY},     almacen::Campo{"MT", &EstacionEscaleraH::MT},
    almacen::Campo{"MX", &EstacionEscaleraH::MX},     almacen::Campo{"MY", &EstacionEscaleraH::MY},
    almacen::Campo{"MS1", &EstacionEscaleraH::MS1},   almacen::Campo{"MI1", &EstacionEscaleraH::MI1},
    almacen::Campo{"TU", &EstacionEscaleraH::TU},     almacen::Campo{"ASXS", &EstacionEscaleraH::ASXS},
    almacen::Campo{"ASXI", &EstacionEscaleraH::ASXI}, almacen::Campo{"AsY", &EstacionEscaleraH::AsY},
    almacen::Campo{"AsT", &EstacionEscaleraH::AsT},   almacen::Campo{"LON", &EstacionEscaleraH::LON},
    almacen::Campo{"SEP", &EstacionEscaleraH::SEP},   almacen::Campo{"ASMin", &EstacionEscaleraH::ASMin}};

}  // namespace trabex::helices::salida
