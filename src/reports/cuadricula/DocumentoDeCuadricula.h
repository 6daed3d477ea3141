#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "reports/cuadricula/Cuadricula.h"

namespace trabex::cuadricula {

/// What the head of a grid's pages tells.
struct MembreteDeCuadricula {
    std::string Titulo;
    std::string Usuario;                  ///< empty: the head has no such line
    std::optional<std::string> Proyecto;  ///< title of the open project
    documento::Alineacion Lado = documento::Alineacion::Centro;
};

/// How a grid goes on paper. Margins are twips (1/1440 inch).
struct AjustesDeImpresion {
    std::int32_t MargenIzquierdo = 800;
    std::int32_t MargenDerecho = 800;
    std::int32_t MargenSuperior = 800;
    std::int32_t MargenInferior = 1200;
    bool Apaisada = false;
    bool CabecerasDeFilas = true;
    bool CabecerasDeColumnas = true;
    bool LineasDeCuadricula = true;
    bool Color = true;
    bool Sombras = true;  ///< grounds under the headings
    bool NumeroDePagina = true;
};

/// The lines of the head: the title in 18 points, the user's name in 10, and "Proyecto: " with the project's
/// title in 16, all bold.
std::vector<documento::LineaDeMembrete> LineasDe(const MembreteDeCuadricula& membrete);

/// The grid as pages: each has the head, and at the foot on the right "Página: " with its number. Sheets
/// begin pages of their own.
documento::Documento DocumentoDe(const Cuadricula& cuadricula, const MembreteDeCuadricula& membrete,
                                 const AjustesDeImpresion& ajustes);

}  // namespace trabex::cuadricula
