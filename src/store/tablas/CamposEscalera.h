#pragma once

#include <tuple>

#include "base/DatosGenerales.h"
#include "helical/DatosEscaleraH.h"
#include "stairs/DatosEscaleraT.h"
#include "store/Campos.h"

namespace trabex::almacen::tablas {

/// `EscaleraTG` and `EscaleraHG`.
inline constexpr std::tuple CamposGeneralesEscalera{
    Campo{"FC", &DatosGenerales::FC},           Campo{"FY", &DatosGenerales::FY},
    Campo{"D8", &DatosGenerales::D8},           Campo{"FiMomento", &DatosGenerales::FiMomento},
    Campo{"FiCorte", &DatosGenerales::FiCorte}, Campo{"FS", &DatosGenerales::FS}};

/// `EscaleraTDatos`, the list, and `EscaleraT`.
inline constexpr std::tuple CamposListaT{Campo{"Nombre", &escaleras::DatosEscaleraT::Nombre},
                                         Campo{"Titulo", &escaleras::DatosEscaleraT::Titulo}};
inline constexpr std::tuple CamposEscaleraT{
    Campo{"L", &escaleras::DatosEscaleraT::L},   Campo{"B", &escaleras::DatosEscaleraT::B},
    Campo{"H", &escaleras::DatosEscaleraT::H},   Campo{"HT", &escaleras::DatosEscaleraT::HT},
    Campo{"Hd", &escaleras::DatosEscaleraT::Hd}, Campo{"WT", &escaleras::DatosEscaleraT::WT},
    Campo{"Wd", &escaleras::DatosEscaleraT::Wd}, Campo{"WpD", &escaleras::DatosEscaleraT::WpD}};

/// `EscaleraHDatos`, the list, and `EscaleraH`.
inline constexpr std::tuple CamposListaH{Campo{"Nombre", &helices::DatosEscaleraH::Nombre},
                                         Campo{"Titulo", &helices::DatosEscaleraH::Titulo}};
inline constexpr std::tuple CamposEscaleraH{
    Campo{"B", &helices::DatosEscaleraH::B},           Campo{"T", &helices::DatosEscaleraH::T},
    Campo{"H", &helices::DatosEscaleraH::H},           Campo{"R", &helices::DatosEscaleraH::R},
    Campo{"Angulo", &helices::DatosEscaleraH::Angulo}, Campo{"W", &helices::DatosEscaleraH::W},
    Campo{"Inter", &helices::DatosEscaleraH::Inter}};

}  // namespace trabex::almacen::tablas
