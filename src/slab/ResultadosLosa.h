#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "base/ErrorEjecucion.h"

namespace trabex::losas {

/// Load cases of a slab. Results by case are arrays of 3, slot 0 being empty.
enum CasoCarga : std::size_t { CasoPermanente = 1, CasoVariable = 2 };

/// A joint under one load case. X runs along the slab, Y downward, rotation counterclockwise as seen with
/// X to the right and Y down the page.
struct EstadoJunta {
    std::string Eje;  ///< axis name
    double x = 0;     ///< position, the first joint at 0, m
    double y = 0;
    double RestringidaY = 0;  ///< 1 or 0
    double RestringidaX = 0;
    double RestringidoGiro = 0;
    double DX = 0;  ///< displacement, m
    double DY = 0;
    double Giro = 0;  ///< rad
    double RV = 0;    ///< reaction along Y, kgf; 0 where Y is free
    double RH = 0;    ///< reaction along X, kgf; 0 where X is free
};

/// End forces of a span under one load case, each rounded to 8 decimals. A is its first joint, B its second.
/// Moments in kgf·m, negative when they hog; shears (upward on the span at A) and axial forces in kgf.
/// M(x) = MomentoA + CorteA·x − w·x²/2 along a span under a uniform load w.
struct EsfuerzosTramo {
    double MomentoA = 0;
    double CorteA = 0;
    double AxialA = 0;
    double MomentoB = 0;
    double CorteB = 0;
    double AxialB = 0;
};

/// What is built at a joint.
struct DisenoDeEje {
    double AS1 = 0;   ///< top steel, cm²
    double AS2 = 0;   ///< bottom steel, cm²
    double MczI = 0;  ///< solid zone to the left of the joint (ribbed slabs), m
    double MczD = 0;  ///< solid zone to the right of the joint (ribbed slabs), m
    double PtoI = 0;  ///< inflection point on the span to the left, measured back from the joint, m
    double PtoD = 0;  ///< inflection point on the span to the right, measured from the joint, m
};

/// What is built inside a span.
struct DisenoDeTramo {
    double MT = 0;   ///< largest factored moment inside the span, kgf·m
    double x = 0;    ///< its position from the first joint, along the member, m
    double AS1 = 0;  ///< top steel for MT, cm²
    double AS2 = 0;  ///< bottom steel for MT, cm²
};

/// Directions of a joint.
enum class Direccion { X, Y, Giro };

/// A direction in which nothing holds the slab: its pivot vanishes beside the stiffness assembled there.
struct DireccionLibre {
    std::size_t Junta;
    Direccion En;
};

/// All that a calculation leaves. Joints and spans count from 1; slot 0 stays zero and is read.
/// Arrays are empty until the calculation that fills them has begun.
struct ResultadosLosa {
    std::array<std::vector<EstadoJunta>, 3> ResultadoJunta;     ///< by case, then joint
    std::array<std::vector<EsfuerzosTramo>, 3> ResultadoTramo;  ///< by case, then span
    std::vector<DireccionLibre> DireccionesLibres;              ///< empty when the slab holds
    std::vector<DisenoDeEje> DisenoEje;
    std::vector<DisenoDeTramo> DisenoTramo;
    double MaxMomentoApoyo = 0;           ///< largest absolute factored end moment, kgf·m
    double MaxCorte = 0;                  ///< largest absolute factored end shear, kgf
    double MaxMomentoTramo = 0;           ///< largest absolute MT, kgf·m
    std::optional<ErrorEjecucion> Error;  ///< the run-time error that ended the calculation, if one did
};

}  // namespace trabex::losas
