#pragma once

#include <cstdint>
#include <string_view>

#include "drawing/Plano.h"

namespace trabex::dibujo {

/// In what a drawing on paper differs from the same drawing on a screen, whatever element it shows.
struct Superficie {
    std::string_view FuenteNombre;
    bool ConCuadricula;
    /// The pan of the screen is brought to the page's scale, and a text has its size at zoom 1 of the page.
    bool DePagina;
};
inline constexpr Superficie EnPantalla{"Tahoma", true, false};
inline constexpr Superficie EnPapel{"Arial", false, true};

/// Size of the hidden surfaces of reports and pictures, in twips (1/1440 inch), and twips to a unit of
/// theirs. It, and not the size of the screen's canvas, sets the scale of a report's drawings.
inline constexpr std::int32_t AnchoGraficoTwips = 14100;
inline constexpr std::int32_t AltoGraficoTwips = 8700;
inline constexpr std::int32_t TwipsPorUnidad = 15;

/// How much of its surface a drawing fills.
struct ReglaDeEscala {
    double ParteDelAncho;
    double ParteDelAlto = 0;        ///< 0: the height does not limit the scale
    double EscalaMaxima = 0;        ///< canvas units per metre; 0: no cap
    bool TopeSoloApaisada = false;  ///< the cap holds on a surface that is wider than high
};

/// Base scale of a world of `ancho` by `alto` m, in canvas units per metre at zoom 1: the smallest of the
/// rule's limits.
double EscalaDeRegla(const Lienzo& lienzo, const ReglaDeEscala& regla, double ancho, double alto);

/// Where a world lies on its surface, without pan. Its origin is in the middle of the width, on the row of
/// `ParteDelAlto` of the height and `Metros` m further down, which follow the zoom.
struct Encuadre {
    double EscalaBase;  ///< canvas units per metre at zoom 1
    double ParteDelAlto;
    double Metros;
};

/// Start of a redraw: clears the surface and draws the grid, where the surface has one and the user wants it.
/// A sheet that has nothing to show ends here.
void Despejar(Lienzo& lienzo, const EstadoVista& vista, const Superficie& superficie);

/// Sets scale and origin of a redraw in `vista`, from its zoom and pan, and the default colour of texts.
/// A zoom that is not above 0 becomes 1. On paper `vista` is a copy of the screen's, its Escala being still
/// the screen's. The result refers to the three arguments.
Plano Encuadrar(Lienzo& lienzo, EstadoVista& vista, const Superficie& superficie, const Encuadre& encuadre);

}  // namespace trabex::dibujo
