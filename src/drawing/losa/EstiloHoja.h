#pragma once

#include <array>
#include <limits>
#include <string_view>

#include "drawing/Superficie.h"

namespace trabex::dibujo::losa {

/// Part of the width that a slab takes by its total length: the first row whose bound it exceeds.
struct AjustePorLongitud {
    double MayorQue;    ///< m
    double Parte;       ///< of the width
    double Escalonada;  ///< the same with an axis above the first one's level
};
using AjustesPorLongitud = std::array<AjustePorLongitud, 4>;
inline constexpr double CualquierLongitud = -std::numeric_limits<double>::infinity();

/// Texts of the sheets that are shorter on paper.
struct TextosHoja {
    std::string_view VU, MU;
    std::string_view CP, CV, Total;
    std::string_view Macizados, MuSup, MuInf;
    std::string_view AsSup, AsSupMetro, AsInf, AsInfMetro;
    std::string_view PuntosInflexion;
    std::string_view Espesor;          ///< before the depth in the geometry's title
    std::string_view TituloGeometria;  ///< after the depth, on the same line
    std::string_view LineaGeometria;   ///< a title line of its own; empty when there is none
    std::string_view TituloDiseno;     ///< after the depth
};

/// All in which a slab's sheet on paper differs from the same sheet on the screen.
struct EstiloHoja {
    Superficie Medio;
    AjustesPorLongitud Ajustes;
    double ParteDelAlto;    ///< of the height, for the slab and its bands; 0: the height sets no limit
    double EscalaMaxima;    ///< cap of the base scale; 0: none
    double OrigenVertical;  ///< row of the world's origin, as a part of the height
    TextosHoja Textos;
};

inline constexpr EstiloHoja HojaEnPantalla{
    EnPantalla,
    {{{15, 0.75, 0.75}, {10, 0.70, 0.70}, {5, 0.65, 0.55}, {CualquierLongitud, 0.60, 0.60}}},
    0.7,
    0,
    0.18,
    {"VU (kgf):", "MU (kgf-m):", "CP (kgf/metro):", "CV (kgf/metro):", "Total (kgf/metro):", "Macizados (m):",
     "Mu Sup (kgf-m):", "Mu Inf (kgf-m):", "As Sup (cm2):", "As Sup (cm2/m):", "As Inf (cm2):",
     "As Inf (cm2/m):", "Puntos Inflexión (m):", "E = ", " m", "(GEOMETRIA DE LA LOSA)",
     " m   (DISEÑO Y REACCIONES DE SERVICIO POR METRO LINEAL SOBRE LAS VIGAS)"}};

/// On paper the scale is capped and the height does not limit it; the left column is narrower.
inline constexpr EstiloHoja HojaEnPapel{
    EnPapel,
    {{{15, 0.75, 0.75}, {10, 0.70, 0.70}, {5, 0.65, 0.65}, {CualquierLongitud, 0.60, 0.60}}},
    0,
    350,
    0.25,
    {"Vu (kgf):", "Mu (kgf-m):", "CP (kgf/ml):", "CV (kgf/ml):", "Total (kgf/ml):", "Macizado (m):",
     "Mu Sup(kgf-m):", "Mu Inf (kgf-m):", "As Sup(cm2):", "As Sup(cm2/m):", "As Inf(cm2):", "As Inf(cm2/m):",
     "Inflexión (m):", "H = ", " m  (Geometría)", "", " m   (ANALISIS Y DISEÑO)"}};

}  // namespace trabex::dibujo::losa
