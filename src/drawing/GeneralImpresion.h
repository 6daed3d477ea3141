#pragma once

#include <string>

#include "drawing/Lienzo.h"

namespace trabex::dibujo {

/// What is printed on every page around its drawing, whatever element it shows.
struct DatosDePagina {
    std::string Usuario;
    std::string Proyecto;
    std::string Calculista;
};

/// The page's furniture: project and engineer at the head, user and edition at the foot.
void DibujePagina(Lienzo& pagina, const DatosDePagina& datos);

}  // namespace trabex::dibujo
