#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "drawing/Plano.h"
#include "drawing/losa/GraficoLosa.h"

namespace trabex::dibujo::losa {

/// Colours and sizes that the sheets of a slab share. Lengths in metres of the drawing, which do not follow
/// the slab's depth.
namespace hoja {

inline constexpr Color Contorno{26, 33, 34};
inline constexpr Color FondoTexto{255, 244, 214};
inline constexpr Color FlechaBloque{189, 207, 240};
inline constexpr double MediaBanda = 0.15;  ///< from the axis line to the band's edge
inline constexpr double BordeCarga = 0.55;  ///< top of the load band, above the axis line
inline constexpr double PieDeEjes = 1.58;   ///< below the circles of the axis names
inline constexpr double LetraNormal = 8.5;  ///< points
inline constexpr double LetraDeTitulo = 9;
inline constexpr std::int32_t SeparacionCuadricula = 80;  ///< canvas units

}  // namespace hoja

/// A sheet of a slab while it is drawn: the canvas in metres, and what it shows.
struct Hoja {
    Plano Papel;
    const HojaLosa& Datos;
    const LosaCalculada& Losa;
    const EstiloHoja& Estilo;
    std::size_t N = 0;  ///< spans

    double EjeX(std::size_t eje) const { return Datos.Ejes.EjesX[eje]; }
    double EjeY(std::size_t eje) const { return Datos.Ejes.EjesY[eje]; }
    std::string Numero(double valor, std::string_view formato) const;
    std::string Espesor() const;
};

/// Scale and origin of a redraw.
void UbicarVista(const Lienzo& lienzo, HojaLosa& hoja, const EstiloHoja& estilo);

/// Clears the canvas, sets the scale and draws what the three sheets have in common. A sheet of no spans has
/// nothing to draw.
Hoja EmpezarHoja(Lienzo& lienzo, HojaLosa& datos, const LosaCalculada& losa, const EstiloHoja& estilo);

/// Symbol of a support at a joint of the world: a pin stands on the ground, a roller along X on two wheels, a
/// roller along Y leans on a wall by two wheels, a fixed joint is a block about it; no support has none.
void DibujeApoyo(const Plano& plano, double x, double y, std::int16_t tipo);

/// Bold lines of the sheet's title, centred below each other from a row on.
void DibujeTitulos(const Hoja& hoja, std::int32_t fila, const std::vector<std::string>& lineas);

}  // namespace trabex::dibujo::losa
