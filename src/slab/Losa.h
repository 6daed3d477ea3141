#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "base/DatosGenerales.h"

namespace trabex::losas {

/// One span, with its service loads. Loads of a ribbed slab are per rib, those of a solid slab per metre.
struct Tramo {
    double LT = 0;        ///< length between its joints before any of them is displaced, m
    std::int32_t Wp = 0;  ///< permanent uniform load, kgf/m
    std::int32_t WV = 0;  ///< live uniform load, kgf/m
    std::int32_t p1 = 0;  ///< permanent point load, kgf
    double L1 = 0;        ///< distance of p1 from the span's first joint, along the horizontal, m
};

/// Support types of a joint. Any other number restrains nothing.
enum TipoApoyo : std::int16_t {
    ApoyoFijo = 1,      ///< X and Y
    RodilloEnX = 2,     ///< Y
    RodilloEnY = 3,     ///< X
    Empotramiento = 4,  ///< X, Y and rotation
    SinApoyo = 5,       ///< nothing
};

/// What a support restrains.
struct Restriccion {
    bool X = false;
    bool Y = false;
    bool Giro = false;
};
Restriccion RestriccionDe(std::int16_t tipo);

/// One joint: the axis that the engineer sees, and its support.
struct EjeLosa {
    std::string Eje;        ///< axis name
    std::int16_t Tipo = 0;  ///< see TipoApoyo
    double Lizq = 0;        ///< carried with the slab; no calculation reads it
    double Lder = 0;        ///< carried with the slab; no calculation reads it
    double HV = 0;          ///< carried with the slab; no calculation reads it
};

/// A shift of a joint's position. It is geometry, not a settlement; several on one joint add up.
struct JuntaD {
    std::int16_t Junta = 0;  ///< joint number, from 1
    double x = 0;            ///< shift along the slab, m
    double y = 0;            ///< shift across it, m
};

/// The open slab. The three arrays count from 1: slot 0 exists, stays zero, and some formulas read it.
struct Losa {
    std::string Nombre;
    bool OpcionMaciza = false;  ///< solid, or else ribbed
    double Bo = 0.1;            ///< rib width, m
    double Ho = 0.25;           ///< depth of the ribbed slab, m
    double So = 0.5;            ///< rib spacing between centres, m
    double Bm = 1;              ///< width of the solid strip, m
    double Hm = 0.2;            ///< depth of the solid slab, m
    double Loseta = 0.05;       ///< depth of the ribbed slab's topping, m
    std::vector<Tramo> Tramos = std::vector<Tramo>(1);
    std::vector<EjeLosa> Ejes = std::vector<EjeLosa>(1);
    std::vector<JuntaD> JuntasD = std::vector<JuntaD>(1);
};

inline std::size_t NumeroTramos(const Losa& losa) {
    return losa.Tramos.size() - 1;
}

/// The rectangular section that is analysed and designed: (Bm, Hm) of a solid slab, (Bo, Ho) of a ribbed one.
struct SeccionLosa {
    double Ancho;  ///< m
    double Alto;   ///< m
};
SeccionLosa SeccionDeCalculo(const Losa& losa);

/// Erases spans, axes and displaced joints, leaving their slot 0.
void VaciarLosa(Losa& losa);

}  // namespace trabex::losas
