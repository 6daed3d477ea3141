#pragma once

#include <cstddef>
#include <functional>

#include "base/Proyecto.h"
#include "slab/Losa.h"
#include "slab/ResultadosLosa.h"
#include "store/proyecto/ProyectoAbierto.h"

namespace trabex::losas::salida {

/// A slab of a project with its results; `Numero` is its place in the list, from 1.
struct LosaDelProyecto {
    std::size_t Numero;
    const DatosDelProyecto& Proyecto;
    const Losa& Datos;
    const DatosGenerales& Generales;
    const ResultadosLosa& Resultados;
};

/// A project whose slabs are to be reported, as the workspace or the batch program has it open.
struct ProyectoParaReporte {
    almacen::proyecto::ProyectoAbierto& Proyecto;
    const DatosDelProyecto& Datos;
    const DatosGenerales& Generales;
    int FilaSeleccionada = 1;  ///< position of the workspace's selected slab in the list
};

/// Visits the selected slab, or all those of the list in its order, each read and calculated anew on records
/// of its own: what the workspace has on the screen stays as it is. The list comes back to where it stood
/// after all of them, and stays on the selected one after it alone.
void RecorrerLosas(const ProyectoParaReporte& origen, bool todas,
                   const std::function<void(const LosaDelProyecto&)>& accion);

/// Sum of what `cuenta` tells of the same slabs, read and not calculated.
std::size_t ContarEnLosas(const ProyectoParaReporte& origen, bool todas,
                          const std::function<std::size_t(const Losa&)>& cuenta);

}  // namespace trabex::losas::salida
