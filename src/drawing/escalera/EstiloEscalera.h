#pragma once

#include "drawing/Superficie.h"

namespace trabex::dibujo::escalera {

/// All in which a stair's sheet on paper differs from the same sheet on the screen.
struct EstiloEscalera {
    Superficie Medio;
    ReglaDeEscala Geometria;
    double MetrosDeGeometria;  ///< that the geometry needs in height beside two widths and the rise
    ReglaDeEscala Tablas;      ///< of the sheets of forces and design
    double MargenDeTablas;     ///< above and below them, as a part of the height: the page's furniture
    ReglaDeEscala Reacciones;
    bool MinimoEnCentimetros;  ///< the captions of minimum steel are true; on the screen they follow the zoom
};

inline constexpr EstiloEscalera HojaEnPantalla{EnPantalla, {0.8, 0.8}, 1.3, {0.7, 0.7}, 0, {1, 1}, false};

/// On paper the height does not limit the tables, but a wide page caps their scale.
inline constexpr EstiloEscalera HojaEnPapel{EnPapel, {0.8, 0.7}, 0.5, {0.4, 0, 600, true},
                                            0.04,    {0.8, 0.8}, true};

/// Beside the fields of an entry window, where the canvas is narrow: the dimensions need more of it.
inline constexpr EstiloEscalera HojaDeBoceto{EnPantalla, {0.45, 0.75}, 1.3, {0.7, 0.7}, 0, {1, 1}, false};

}  // namespace trabex::dibujo::escalera
