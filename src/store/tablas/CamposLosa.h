#pragma once

#include <tuple>

#include "base/DatosGenerales.h"
#include "slab/Losa.h"
#include "store/Campos.h"

namespace trabex::almacen::tablas {

/// `LosaG`.
inline constexpr std::tuple CamposGeneralesLosa{
    Campo{"FC", &DatosGenerales::FC},          Campo{"FY", &DatosGenerales::FY},
    Campo{"D8", &DatosGenerales::D8},          Campo{"FCP", &DatosGenerales::FCP},
    Campo{"FCV", &DatosGenerales::FCV},        Campo{"FiMomento", &DatosGenerales::FiMomento},
    Campo{"FiCorte", &DatosGenerales::FiCorte}};

/// `LosaDatos`, beside the name.
inline constexpr std::tuple CamposSeccion{Campo{"OpcionMaciza", &losas::Losa::OpcionMaciza},
                                          Campo{"Bo", &losas::Losa::Bo},
                                          Campo{"Ho", &losas::Losa::Ho},
                                          Campo{"So", &losas::Losa::So},
                                          Campo{"Bm", &losas::Losa::Bm},
                                          Campo{"Hm", &losas::Losa::Hm},
                                          Campo{"Loseta", &losas::Losa::Loseta}};

/// `LosaTramos`.
inline constexpr std::tuple CamposTramo{Campo{"LT", &losas::Tramo::LT}, Campo{"Wp", &losas::Tramo::Wp},
                                        Campo{"WV", &losas::Tramo::WV}, Campo{"p1", &losas::Tramo::p1},
                                        Campo{"L1", &losas::Tramo::L1}};

/// `LosaEjes`: the last three are stored and not read back.
inline constexpr std::tuple CamposEje{
    Campo{"Eje", &losas::EjeLosa::Eje}, Campo{"Tipo", &losas::EjeLosa::Tipo},
    Campo{"Lizq", &losas::EjeLosa::Lizq, false}, Campo{"Lder", &losas::EjeLosa::Lder, false},
    Campo{"HV", &losas::EjeLosa::HV, false}};

/// `LosaJuntasD`.
inline constexpr std::tuple CamposJuntaD{Campo{"Junta", &losas::JuntaD::Junta}, Campo{"x", &losas::JuntaD::x},
                                         Campo{"y", &losas::JuntaD::y}};

}  // namespace trabex::almacen::tablas
