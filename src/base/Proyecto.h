#pragma once

#include <string>

#include "base/Fecha.h"

namespace trabex {

/// The project's title data: the one row of its table `Proyecto`.
struct DatosDelProyecto {
    std::string Proyecto;
    std::string Propietario;
    std::string Calculista;
    trabex::Fecha Fecha;
    std::string Cliente;
    std::string Comentario;
};

}  // namespace trabex
