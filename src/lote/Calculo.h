#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <vector>

#include "base/Proyecto.h"
#include "lote/Marcha.h"
#include "lote/Modulo.h"

namespace trabex::lote {

using Modulos = std::span<const Modulo* const>;

/// A whole project, read once and calculated once: everything that is written comes from here.
struct ProyectoCalculado {
    std::filesystem::path Camino;
    DatosDelProyecto Datos;
    std::vector<Lista> Listas;  ///< one a module, in the modules' order
};

/// Reads a project and calculates every element of it; the project is not written to. Results and their order
/// do not depend on how many threads there are. False when the file is no project: none of the modules' lists
/// is in it. A project without the tables of an element has no such elements.
bool CalcularProyecto(const std::filesystem::path& camino, Modulos modulos, const Marcha& marcha,
                      ProyectoCalculado& calculado);

/// The results as one JSON document, an element a line.
std::string DocumentoJson(const ProyectoCalculado& calculado, const Marcha& marcha);

}  // namespace trabex::lote
