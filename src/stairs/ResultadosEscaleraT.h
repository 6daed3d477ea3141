#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/ErrorEjecucion.h"

namespace trabex::escaleras {

/// What the closed-form solution of a self-supporting stair fixes for all its stations.
struct EstaticaEscaleraT {
    double Alfa = 0;  ///< slope of a flight, radians
    double Denominador = 0;
    double CoefMomento = 0;             ///< share of WT·L² that bends the flight at its support
    double CoefLateral = 0;             ///< share of WT·L² in the horizontal moment
    double CoefDescanso = 0;            ///< share of the landing load times L² that bends the flight
    double CoefLateralDescanso = 0;     ///< share of Wd·L² in the horizontal moment
    double MomentoApoyoTotal = 0;       ///< moment at the support, landing under Wd, kgf·m
    double MomentoHorizontal = 0;       ///< moment about a horizontal axis, always with Wd, kgf·m
    double MomentoApoyoPermanente = 0;  ///< moment at the support, landing under WpD, kgf·m
    double EmpujeFlexion = 0;           ///< horizontal force of the couple between the flights, kgf
};

/// A station of the flight. Forces in kgf, moments in kgf·m, steel in cm².
struct EscaleraTramoPunto {
    double MomentoTotal = 0;        ///< bending moment with Wd; a positive one pulls the bottom face
    double MomentoPermanente = 0;   ///< bending moment with WpD
    double CorteTotal = 0;          ///< shear with Wd
    double CortePermanente = 0;     ///< shear with WpD
    double Axial = 0;               ///< axial force, positive in compression of the lower flight
    double MomentoY = 0;            ///< lateral moment, about the normal to the flight's plane
    double Torsor = 0;              ///< torsional moment
    double EnvolventeNegativa = 0;  ///< the smaller of 0 and the two moments
    double EnvolventePositiva = 0;  ///< the greater of 0 and the two moments
    double AsSuperior = 0;          ///< flexural steel, top face
    double AsInferior = 0;          ///< flexural steel, bottom face
    double AsTorsion = 0;           ///< longitudinal steel for torsion, the half that each face takes
    double AsY = 0;                 ///< steel for the lateral moment
    double CorteEnvolvente = 0;     ///< the greatest of 0 and the two absolute shears
    double SeparacionEstribo = 0;   ///< stirrup spacing, cm
    double AreaEstribo = 0;         ///< one leg: 0.71 (3/8"), 1.27 (1/2"), 0 until a station needs steel
};

/// A station of the half landing. Forces in kgf, moments in kgf·m, steel in cm², stresses in kgf/cm².
struct EscaleraDescansoPunto {
    double MomentoTotal = 0;       ///< MX with Wd
    double CorteTotal = 0;         ///< VX with Wd
    double MomentoPermanente = 0;  ///< MX with WpD; no design uses it
    double CortePermanente = 0;    ///< VX with WpD; no design uses it
    double CorteY = 0;             ///< shear in the landing's plane
    double Axial = 0;
    double MomentoY = 0;  ///< lateral moment, in the landing's plane
    double Torsor = 0;
    double AsSuperior = 0;
    double AsInferior = 0;
    double AsY = 0;
    double TensionCorte = 0;      ///< factored shear stress of CorteY
    double TensionAdmisible = 0;  ///< what the concrete takes
    std::string FallaCorte;       ///< TextoFallaCorte, or empty
};

inline constexpr const char* TextoFallaCorte = "Falla por Corte";

/// All that a calculation leaves. The arrays are empty until the first calculation that fills them has begun.
struct ResultadosEscaleraT {
    EstaticaEscaleraT Estatica;
    std::vector<EscaleraTramoPunto> TramoT;        ///< 0 to 10, from the landing to the support
    std::vector<EscaleraDescansoPunto> DescansoT;  ///< 1 to 7, at 0, 15, … 90 degrees; slot 0 stays zero
    double ReaccionVertical = 0;                   ///< kgf
    double ReaccionHorizontal = 0;                 ///< kgf; a sum of projections where statics subtracts
    std::optional<ErrorEjecucion> Error;           ///< the run-time error that ended the calculation
};

}  // namespace trabex::escaleras
