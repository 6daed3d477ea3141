#include "slab/salida/RecorrerLosas.h"

#include "slab/CalcularLosa.h"
#include "store/Posicion.h"
#include "store/tablas/TablasLosa.h"

namespace trabex::losas::salida {

namespace {

void Visitar(almacen::tablas::ProyectoAbierto& proyecto, const ProyectoParaReporte& origen,
             const std::function<void(const LosaDelProyecto&)>& accion) {
    Losa losa;
    ResultadosLosa resultados;
    almacen::tablas::LeerLosa(proyecto, losa);
    CalcularLosa(losa, origen.Generales, resultados);
    const auto numero = static_cast<std::size_t>(proyecto.RegistrosProyecto.Posicion());
    accion({numero, origen.Datos, losa, origen.Generales, resultados});
}

}  // namespace

void RecorrerLosas(const ProyectoParaReporte& origen, bool todas,
                   const std::function<void(const LosaDelProyecto&)>& accion) {
    almacen::Recordset& lista = origen.Proyecto.RegistrosProyecto;
    if (lista.NumeroRegistros() == 0) return;
    if (!todas) {
        lista.MoverA(origen.FilaSeleccionada);
        Visitar(origen.Proyecto, origen, accion);
        return;
    }
    // A file has no index of its names: a copy that has one is read in a time that grows with the slabs, not
    // with their square. The list is the workspace's own in both.
    almacen::tablas::ProyectoAbierto copia{.ConexionProyecto = {}, .RegistrosProyecto = lista};
    almacen::CopiarEnMemoria(origen.Proyecto.ConexionProyecto, copia.ConexionProyecto);
    almacen::tablas::ProyectoAbierto& leido = copia.ConexionProyecto.Abierta() ? copia : origen.Proyecto;
    const auto posicion = almacen::PosicionGuardada(lista);
    for (int k = 1; k <= lista.NumeroRegistros(); ++k) {
        lista.MoverA(k);
        Visitar(leido, origen, accion);
    }
}

}  // namespace trabex::losas::salida
