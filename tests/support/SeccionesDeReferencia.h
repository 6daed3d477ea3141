#pragma once

#include <cstdint>

#include "base/DatosGenerales.h"

namespace trabex::prueba {

/// Materials and factors of a worked section.
struct GeneralesDeReferencia {
    std::int16_t FC, FY;
    double D8, FiMomento, FS;

    operator DatosGenerales() const {
        DatosGenerales g;
        g.FC = FC;
        g.FY = FY;
        g.D8 = D8;
        g.FiMomento = FiMomento;
        g.FS = FS;
        return g;
    }
};

inline constexpr GeneralesDeReferencia Flexion{210, 2800, 0.03, 0.85, 1.7}, Comun{210, 2800, 0.03, 0.9, 1.5},
    Blanda{210, 1400, 0.06, 0.9, 1.5}, Fc350{350, 2800, 0.03, 0.85, 1.7}, Fc420{420, 5000, 0.06, 0.9, 1.55},
    Fc280{280, 4200, 0.05, 0.9, 1.4}, Fc250{250, 4200, 0.03, 0.9, 1.55};

/// Sections of stairs worked apart from the program, in 30 digits, from the equations that the headers of
/// base/RefuerzoFlexion.h and base/EstribosTorsion.h tell. Lengths in m, moments in kgf·m, steel in cm².
struct FlexionDeReferencia {
    const char* Que;
    GeneralesDeReferencia g;
    double Ancho, Alto, M;
    double AsSup, AsInf;
};
inline constexpr FlexionDeReferencia SeccionesAFlexion[]{
    {"sólo tracción, M > 0", Flexion, 1.2, 0.18, 1800, 0, 8.9190467208},
    {"la misma, M < 0", Flexion, 1.2, 0.18, -1800, 8.9190467208, 0},
    {"justo bajo el límite", Flexion, 1.2, 0.18, 5000.934999, 0, 26.9983018674},
    {"justo sobre el límite", Flexion, 1.2, 0.18, 5000.945001, 4.76762476762e-5, 27.0000297679},
    {"con compresión, fs = Fy", Fc350, 0.3, 0.4, -25000, 53.6359054622, 25.8859054622},
    {"con compresión, fs < Fy y β1 = 0.75", Fc420, 0.3, 0.4, 25000, 22.4967115718, 29.537312254},
    {"con compresión, β1 = 0.85", Fc280, 0.25, 0.35, 9000, 4.60621291449, 12.7493333333},
    {"delgada: compresión negativa", Fc250, 1.2, 0.08, -1200, 15.996031746, -5.0553459547},
};

/// Stirrups of a flight: its section and geometry, service shear (kgf), torsion and horizontal moment
/// (kgf·m), place in plan; spacing (cm), longitudinal steel of a face, and the leg chosen, 0 where no steel
/// is needed.
struct EstribosTramoDeReferencia {
    const char* Que;
    GeneralesDeReferencia g;
    double B, HT, L, H, Corte, Torsor, MomentoHorizontal, X;
    double Separacion, AsLongitudinal, Area;
};
inline constexpr EstribosTramoDeReferencia EstribosDeTramos[]{
    {"ancha, αt = 1.5", Comun, 1.5, 0.2, 3, 3.2, 40000, 1270, -600, 0.6, 13.3782779367, 8.38523467151, 0.71},
    {"manda el tope de 30 cm", Comun, 1.5, 0.2, 3, 3.2, 1000, 830, -600, 0.6, 30, 3.73933333333, 0.71},
    {"αt < 1.5", Comun, 0.4, 0.3, 3, 3.2, 30000, 520, -600, 0.3, 14.1870415648, 2.90264885824, 1.27},
    {"manda (x1 + y1)/4", Comun, 0.4, 0.3, 3, 3.2, 3000, 375, -600, 0.3, 14.5, 2.84, 0.71},
    {"b < h", Comun, 0.3, 0.5, 2.8, 3.6, 50000, 690, -900, 0.28, 15.2530550793, 3.16526753158, 1.27},
    {"b < h, barra mayor", Comun, 0.3, 0.5, 2.8, 3.6, 50000, -1500, -900, 0, 6.05115155832, 7.97864663192,
     1.27},
    {"cuadrada", Comun, 0.4, 0.4, 2.5, 2.5, 20000, -900, 500, 0.5, 16.2857660583, 2.96455197914, 1.27},
    {"la barra mayor pasa de 10 cm", Comun, 1.5, 0.2, 3, 3.2, 4000, 2300, -600, 0.6, 12.2171448299,
     9.1821781244, 1.27},
    {"la toma el concreto", Comun, 0.4, 0.3, 3, 3.2, 3000, 150, -600, 0.3, 14.5, 2.84, 0},
    {"el momento horizontal se la lleva", Comun, 0.4, 0.3, 3, 3.2, 3000, 700, -5000, 2.4, 14.5, 2.84, 0},
    {"despreciable, con mucho corte", Blanda, 0.4, 0.3, 3, 3.2, 30000, 145.99963, -600, 0.3, 11.5, 2.84, 0},
    {"apenas no despreciable", Blanda, 0.4, 0.3, 3, 3.2, 30000, 146.25081, -600, 0.3, 10.038475488,
     3.25348206896, 0.71},
};

/// Stirrups of a helix: section, service shear (kgf), area of the torsion diagram; leg, spacing (cm), and
/// longitudinal steel.
struct EstribosHeliceDeReferencia {
    const char* Que;
    GeneralesDeReferencia g;
    double Ancho, Alto, Cortante, Torsion;
    double Barra;
    std::int16_t Separacion;
    double Longitudinal;
};
inline constexpr EstribosHeliceDeReferencia EstribosDeHelices[]{
    {"ancha, αt = 1.5", Comun, 1.4, 0.22, 6000, -3500, 0.71, 15, 14.2},
    {"la misma con más corte", Comun, 1.4, 0.22, -90000, -3500, 0.71, 12, 17.75},
    {"manda el tope de 30 cm", Comun, 1.4, 0.22, 100, -2050, 0.71, 30, 7.1},
    {"ancha, barra mayor", Comun, 1.4, 0.22, 6000, 8000, 1.27, 9, 42.3333333333},
    {"αt < 1.5", Comun, 0.4, 0.3, 30000, 1700, 1.27, 13, 11.3323076923},
    {"manda (x1 + y1)/4, par", Comun, 0.4, 0.3, 3000, 1150, 0.71, 14, 5.88285714286},
    {"b < h", Comun, 0.3, 0.5, -50000, 2400, 1.27, 13, 13.2861538462},
    {"b < h, barra mayor", Comun, 0.3, 0.5, 5000, 4200, 1.27, 8, 21.59},
    {"cuadrada", Comun, 0.4, 0.4, 20000, 2600, 1.27, 12, 14.3933333333},
    {"separación de 8 con la menor", Comun, 0.4, 0.3, 3000, 1930, 0.71, 8, 10.295},
    {"la toma el concreto", Comun, 0.4, 0.3, 3000, 500, 0.71, 14, 5.88285714286},
    {"tan chica que se calcula dos veces", Comun, 0.2, 0.17, 100, 10, 1.27, 6, 10.5833333333},
    {"despreciable, con mucho corte", Blanda, 0.4, 0.3, 30000, 383.927, 0.71, 12, 5.44333333333},
    {"apenas no despreciable", Blanda, 0.4, 0.3, 30000, 384.695623, 0.71, 10, 6.532},
};

}  // namespace trabex::prueba
