#pragma once

#include <string_view>

namespace trabex::dibujo::losa {

/// How a sheet's world is placed on its surface.
///
/// The base scale is width × k / L, with k by the total length L of the spans; further limits below.
struct ReglaDeEscala {
    double KHasta10;            ///< k for 5 < L ≤ 10
    double KHasta10Escalonada;  ///< the same with an axis above the first one's level
    bool LimiteVertical;        ///< the height limits the scale too
    double EscalaMaxima;        ///< cap of the base scale; 0 when there is none
    double OrigenVertical;      ///< row of the world's origin, as a part of the height
    /// The pan on the screen is brought to the page's scale, and a text has its size at zoom 1 of the page.
    bool DePagina;
};

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

/// All in which a sheet on paper differs from the same sheet on the screen.
struct EstiloHoja {
    std::string_view FuenteNombre;
    bool ConCuadricula;
    ReglaDeEscala Escala;
    TextosHoja Textos;
};

inline constexpr EstiloHoja HojaEnPantalla{
    "Tahoma",
    true,
    {0.65, 0.55, true, 0, 0.18, false},
    {"VU (kgf):", "MU (kgf-m):", "CP (kgf/metro):", "CV (kgf/metro):", "Total (kgf/metro):", "Macizados (m):",
     "Mu Sup (kgf-m):", "Mu Inf (kgf-m):", "As Sup (cm2):", "As Sup (cm2/m):", "As Inf (cm2):",
     "As Inf (cm2/m):", "Puntos Inflexión (m):", "E = ", " m", "(GEOMETRIA DE LA LOSA)",
     " m   (DISEÑO Y REACCIONES DE SERVICIO POR METRO LINEAL SOBRE LAS VIGAS)"}};

/// On paper the scale is capped and the height does not limit it; the left column is narrower.
inline constexpr EstiloHoja HojaEnPapel{
    "Arial",
    false,
    {0.65, 0.65, false, 350, 0.25, true},
    {"Vu (kgf):", "Mu (kgf-m):", "CP (kgf/ml):", "CV (kgf/ml):", "Total (kgf/ml):", "Macizado (m):",
     "Mu Sup(kgf-m):", "Mu Inf (kgf-m):", "As Sup(cm2):", "As Sup(cm2/m):", "As Inf(cm2):", "As Inf(cm2/m):",
     "Inflexión (m):", "H = ", " m  (Geometría)", "", " m   (ANALISIS Y DISEÑO)"}};

}  // namespace trabex::dibujo::losa
