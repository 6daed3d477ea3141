#pragma once

#include <cstdint>

#include "base/Formatos.h"
#include "drawing/Lienzo.h"
#include "drawing/Visor.h"
#include "drawing/losa/EstiloHoja.h"
#include "drawing/losa/ValoresHoja.h"

namespace trabex::dibujo::losa {

enum VistaLosa : std::uint8_t { VistaGeometria = 0, VistaFuerzas = 1, VistaDiseno = 2 };

/// What the slab workspace's drawing depends on beside the slab itself. `Vista` and the places of the axes
/// are computed anew by every redraw.
struct HojaLosa {
    EstadoVista Vista;
    std::uint8_t VistaActual = VistaGeometria;
    OpcionDeCarga OpcionCarga = CargaTotal;
    bool SoloReacciones = false;  ///< the design sheet shows its reactions alone
    Separadores Numeros;
    EjesDeHoja Ejes;
};

/// The common part of the three sheets: clears, sets scale and origin, draws the slab with its loads, axes,
/// displaced joints and supports. Returns the number of spans; 0 means that nothing was drawn.
std::int16_t DibujeBaseLosa(Lienzo& lienzo, HojaLosa& hoja, const LosaCalculada& losa,
                            const EstiloHoja& estilo = HojaEnPantalla);
void DibujeGeometria(Lienzo& lienzo, HojaLosa& hoja, const LosaCalculada& losa,
                     const EstiloHoja& estilo = HojaEnPantalla);
void DibujeFuerzas(Lienzo& lienzo, HojaLosa& hoja, const LosaCalculada& losa,
                   const EstiloHoja& estilo = HojaEnPantalla);
void DibujeDiseno(Lienzo& lienzo, HojaLosa& hoja, const LosaCalculada& losa,
                  const EstiloHoja& estilo = HojaEnPantalla);

/// Draws the sheet of `VistaActual`.
void RedibujeVista(Lienzo& lienzo, HojaLosa& hoja, const LosaCalculada& losa,
                   const EstiloHoja& estilo = HojaEnPantalla);

}  // namespace trabex::dibujo::losa
