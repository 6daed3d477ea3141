#pragma once

#include <array>

#include "slab/Banda.h"
#include "slab/Losa.h"
#include "slab/ParDeCasos.h"
#include "slab/ResultadosLosa.h"

namespace trabex::losas {

/// A span as a prismatic Euler-Bernoulli bar. X along the slab, Y downward.
struct Barra {
    double L = 0;            ///< m
    double CX = 0, CY = 0;   ///< direction cosines; 0 for a bar without length
    double L2_12 = 0;        ///< L²/12
    double axial = 0;        ///< EA/L
    double k2 = 0, k4 = 0;   ///< 2EI/L, 4EI/L
    double k6 = 0, k12 = 0;  ///< 6EI/L², 12EI/L³
};

/// Stiffness of a section: kgf and kgf·m².
struct Rigidez {
    double EA;
    double EI;
};

/// E = 15100·√F'c (kgf/cm²), with the area and the second moment of the section that is analysed.
Rigidez RigidezDe(const Losa& losa, std::int16_t FC);

/// The bar from (0, 0) to (dx, dy).
Barra FormarBarra(double dx, double dy, const Rigidez& rigidez);

/// Stiffness in global axes: (X, Y, rotation) at the first joint, then at the second.
MatrizElemento RigidezGlobal(const Barra& barra);

/// Fixed-end terms of a bar, in its axes: w·L²/12 and w·L/2 of the uniform load, and those of a point load
/// strictly between the joints.
struct ExtremosFijos {
    ParDeCasos M0A, M0B, VA0, VB0, NA0, NB0;
};

/// `casos` holds 1 for a load case that is to be solved and 0 for one to leave out.
ExtremosFijos ExtremosFijosDe(const Tramo& tramo, const Barra& barra, const ParDeCasos& casos);

/// End forces under both load cases, each rounded to 8 decimals.
using EsfuerzosPorCaso = std::array<EsfuerzosTramo, 2>;

/// From the displacements d[0] … d[5] of the bar's joints, in global axes: turned to its own, times its
/// stiffness, plus its fixed-end terms.
EsfuerzosPorCaso EsfuerzosDe(const Barra& barra, const ExtremosFijos& fijos, const ParDeCasos* d);

}  // namespace trabex::losas
