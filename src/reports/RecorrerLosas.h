#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>

#include "base/Proyecto.h"
#include "slab/Losa.h"
#include "slab/ResultadosLosa.h"

namespace trabex {

/// A slab of a project with its results; `Numero` is its place in the list, from 1.
struct LosaDelProyecto {
    std::size_t Numero;
    const DatosDelProyecto& Proyecto;
    const Losa& Datos;
    const DatosGenerales& Generales;
    const ResultadosLosa& Resultados;
};

/// Reads and calculates each slab of a project in list order; the project is not written to. False when the
/// file is no project.
bool RecorrerLosas(const std::filesystem::path& camino,
                   const std::function<void(const LosaDelProyecto&)>& accion);

}  // namespace trabex
