#pragma once

#include <cstdint>
#include <string_view>

#include "drawing/Lienzo.h"

namespace trabex::dibujo {

/// Which ways the points of arrows look.
struct Sentidos {
    bool Izquierda = false;
    bool Derecha = false;
    bool Arriba = false;
    bool Abajo = false;
};
inline constexpr Sentidos HaciaIzquierda{true, false, false, false};
inline constexpr Sentidos HaciaDerecha{false, true, false, false};
inline constexpr Sentidos HaciaArriba{false, false, true, false};
inline constexpr Sentidos HaciaAbajo{false, false, false, true};

/// Rounds half to even to a canvas coordinate; what does not fit stays at the range's end.
std::int32_t Pixeles(double valor);

void DibujeLinea(Lienzo& lienzo, std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                 std::int32_t ancho, EstiloLinea estilo, Color color);

/// The text in the current font, turned about its top left corner (x, y) by `angulo` degrees.
void DibujeTexto(Lienzo& lienzo, std::string_view texto, std::int32_t x, std::int32_t y, double angulo);

/// A solid head of 25 pixels for each flag: its point at (x, y), five rows of 1, 3, 5, 7 and 9.
void DibujeFlechaPixel(Lienzo& lienzo, std::int32_t x, std::int32_t y, const Sentidos& sentidos, Color color);

/// A filled block arrow for each flag, its point at (x, y): head 0.15 s long and wide to each side, shaft
/// 0.045 s to each side, 0.5 s long in all, each length rounded half to even.
void DibujeFlecha(Lienzo& lienzo, std::int32_t x, std::int32_t y, const Sentidos& sentidos, Color color,
                  double s);

/// The same figure with 0.101 s, 0.03 s and 0.354 s.
void DibujeFlechaDiagonal(Lienzo& lienzo, std::int32_t x, std::int32_t y, const Sentidos& sentidos,
                          Color color, double s);

/// Vertical lines from x = 0 by `separacion` up to 30 past the width, then horizontal ones in the same way.
void DibujeCuadricula(Lienzo& lienzo, std::int32_t separacion);

}  // namespace trabex::dibujo
