#pragma once

#include <tuple>

#include "markus/CalculeMarcus.h"
#include "store/Campos.h"

namespace trabex::almacen::tablas {

/// `MarcusDatos`, the list, and `Marcus`.
inline constexpr std::tuple CamposNivel{Campo{"Nombre", &marcus::NivelMarcus::Nombre},
                                        Campo{"Paños", &marcus::NivelMarcus::Panos}};
inline constexpr std::tuple CamposPano{
    Campo{"Carga", &marcus::PanoMarcus::Carga}, Campo{"Caso", &marcus::PanoMarcus::Caso},
    Campo{"LX", &marcus::PanoMarcus::LX}, Campo{"LY", &marcus::PanoMarcus::LY}};

/// Results, which results files and reports alone hold.
inline constexpr std::tuple CamposReparto{
    Campo{"CX", &marcus::RepartoMarcus::CX}, Campo{"CY", &marcus::RepartoMarcus::CY},
    Campo{"WX", &marcus::RepartoMarcus::WX}, Campo{"WY", &marcus::RepartoMarcus::WY}};

}  // namespace trabex::almacen::tablas
