#pragma once

#include <cstddef>
#include <optional>

#include "drawing/Plano.h"
#include "drawing/losa/EjesDeHoja.h"

namespace trabex::dibujo::losa {

/// Figures, pens and sizes that the sheets of a slab and the sketches of its entry share. Lengths in metres
/// of the drawing, which do not follow the slab's depth.

/// Layers of a sheet in files for other programs.
inline constexpr const char* CapaLosa = "LOSA";
inline constexpr const char* CapaEjes = "EJES";
inline constexpr const char* CapaApoyos = "APOYOS";
inline constexpr const char* CapaCargas = "CARGAS";
inline constexpr const char* CapaCotas = "COTAS";
inline constexpr const char* CapaDiagramas = "DIAGRAMAS";
inline constexpr const char* CapaTabla = "TABLA";

inline constexpr Color Contorno{26, 33, 34};
inline constexpr Pluma PlumaContorno{1, EstiloLinea::Solida, Contorno};
inline constexpr Color FondoNombreDeEje{255, 244, 214};
inline constexpr Color FlechaBloque{189, 207, 240};
inline constexpr double MediaBanda = 0.15;  ///< from the axis line to the slab band's edge
inline constexpr double BordeCarga = 0.55;  ///< top of the load band, above the axis line

/// A band along span i, from `desde` to `hasta` m above the line through its axes.
void DibujeBanda(const Plano& plano, const EjesDeHoja& ejes, std::size_t i, double desde, double hasta,
                 const std::optional<Pluma>& pluma, Color relleno);

/// The block arrow of a point load at `d` m from the first axis of span i: it stands on the load band, and
/// takes its place. Returns its point on the canvas.
PuntoLienzo DibujeFlechaDeCarga(Plano& plano, const EjesDeHoja& ejes, std::size_t i, double d);

}  // namespace trabex::dibujo::losa
