#pragma once

#include "base/Formatos.h"
#include "drawing/Superficie.h"
#include "drawing/helice/Giro.h"

namespace trabex::dibujo::helice {

/// What the drawing of a helical stair depends on beside the stair itself. `Vista` is computed anew by every
/// redraw.
struct HojaHelice {
    EstadoVista Vista;
    Giro ElGiro;
    Separadores Numeros;
};

enum class Encabezado { Titulo, Nombre };

/// All in which the drawing on paper differs from the one on the screen, and a sketch from both.
struct EstiloHelice {
    Superficie Medio;
    const char* RotuloSeccion;  ///< null: without heading and block of texts
    Encabezado Arriba;
    double ParteDeLaPlanta;  ///< of the smaller side of the surface
    double Cabecera;         ///< parts of the height that the page's furniture takes
    double Pie;
};

/// The odd letter is the system's own.
inline constexpr EstiloHelice HeliceEnPantalla{
    {"Arial", true, false}, "SECCIÖN: ", Encabezado::Titulo, 0.5, 0.02, 0.02};
inline constexpr EstiloHelice HeliceEnPapel{EnPapel, "Sección: ", Encabezado::Nombre, 0.5, 0.08, 0.05};
/// A picture has the texts of paper and no furniture.
inline constexpr EstiloHelice HeliceEnImagen{
    HeliceEnPantalla.Medio, HeliceEnPapel.RotuloSeccion, HeliceEnPapel.Arriba, 0.5, 0.02, 0.02};
inline constexpr EstiloHelice HeliceEnBoceto{
    HeliceEnPantalla.Medio, nullptr, Encabezado::Titulo, 0.48, 0.02, 0.02};

}  // namespace trabex::dibujo::helice
