#include "slab/salida/RecorrerLosas.h"

#include "slab/CalcularLosa.h"
#include "store/Posicion.h"
#include "store/tablas/TablasLosa.h"

namespace trabex::losas::salida {

namespace {

using almacen::tablas::ProyectoAbierto;

/// Puts the list on each of the slabs in turn.
void PorLosa(const ProyectoParaReporte& origen, bool todas,
             const std::function<void(ProyectoAbierto& proyecto)>& accion) {
    almacen::Recordset& lista = origen.Proyecto.RegistrosProyecto;
    if (lista.NumeroRegistros() == 0) return;
    if (!todas) {
        lista.MoverA(origen.FilaSeleccionada);
        accion(origen.Proyecto);
        return;
    }
    // A file has no index of its names: a copy that has one is read in a time that grows with the slabs, not
    // with their square. The list is the workspace's own in both.
    ProyectoAbierto copia{.ConexionProyecto = {}, .RegistrosProyecto = lista};
    almacen::CopiarEnMemoria(origen.Proyecto.ConexionProyecto, copia.ConexionProyecto);
    ProyectoAbierto& leido = copia.ConexionProyecto.Abierta() ? copia : origen.Proyecto;
    const auto posicion = almacen::PosicionGuardada(lista);
    for (int k = 1; k <= lista.NumeroRegistros(); ++k) {
        lista.MoverA(k);
        accion(leido);
    }
}

}  // namespace

void RecorrerLosas(const ProyectoParaReporte& origen, bool todas,
                   const std::function<void(const LosaDelProyecto&)>& accion) {
    PorLosa(origen, todas, [&](ProyectoAbierto& proyecto) {
        Losa losa;
        ResultadosLosa resultados;
        almacen::tablas::LeerLosa(proyecto, losa);
        CalcularLosa(losa, origen.Generales, resultados);
        const auto numero = static_cast<std::size_t>(proyecto.RegistrosProyecto.Posicion());
        accion({numero, origen.Datos, losa, origen.Generales, resultados});
    });
}

std::size_t ContarEnLosas(const ProyectoParaReporte& origen, bool todas,
                          const std::function<std::size_t(const Losa&)>& cuenta) {
    std::size_t total = 0;
    PorLosa(origen, todas, [&](ProyectoAbierto& proyecto) {
        Losa losa;
        almacen::tablas::LeerLosa(proyecto, losa);
        total += cuenta(losa);
    });
    return total;
}

}  // namespace trabex::losas::salida
