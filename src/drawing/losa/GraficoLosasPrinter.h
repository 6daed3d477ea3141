#pragma once

#include <string>

#include "drawing/losa/GraficoLosa.h"

namespace trabex::dibujo::losa {

/// What is printed on every page around its drawing.
struct DatosDePagina {
    std::string Usuario;
    std::string Proyecto;
    std::string Calculista;
};

/// The page's furniture: project and engineer at the head, user and edition at the foot.
void DibujePagina(Lienzo& pagina, const DatosDePagina& datos);

/// Draws the sheet of `VistaActual` on a page: the same routines as on the screen, with the paper's style,
/// and the zoom and pan that the sheet has on the screen. `pantalla` is not changed.
void GuardeGraficos1(Lienzo& pagina, const HojaLosa& pantalla, const LosaCalculada& losa,
                     const DatosDePagina& datos);

}  // namespace trabex::dibujo::losa
